#include "platform/linux/OpenPasteboard.h"
#include "platform/linux/pasteboard/ThreadedPasteboard.h"
#include "platform/linux/wayland/DataControlReader.h"
#include "support/Await.h"
#include "support/WaylandServer.h"
#include "support/XServer.h"

#include <QElapsedTimer>

#include <poll.h>

#include <atomic>

namespace quillon::test {

namespace {

using Owner = WaylandServer::Owner;
constexpr const char* text = "text/plain;charset=utf-8";

/// Everything at once.
Owner whole(std::string content) {
    return [=](const std::string& /*format*/, Descriptor into) {
        // False if the reader does not want it all.
        std::ignore = writeAll(into.number(), content);
    };
}

/// A part, and then nothing until `end`, or until the reader has left.
Owner stuck(std::string part, const std::atomic<bool>& end) {
    return [=, &end](const std::string& /*format*/, Descriptor into) {
        std::ignore = writeAll(into.number(), part);
        pollfd reader{into.number(), 0, 0};
        while (!end && poll(&reader, 1, 5) == 0) {
        }
    };
}

constexpr qint64 promptly = 600; // ms: sooner than the patience

} // namespace

struct WaylandPasteboardTest : testing::TestWithParam<const DataControlProtocol*> {
    std::unique_ptr<Pasteboard> open() {
        return std::make_unique<ThreadedPasteboard>(
            [this](const ReaderHost& host) {
                return DataControlReader::open(server.display(), host);
            },
            limits);
    }
    std::optional<QByteArray> data(const char* format = text) {
        return await(pasteboard->data(format));
    }
    /// How long until there is no answer, in milliseconds.
    qint64 noneAfter(const char* format = text) {
        QElapsedTimer clock;
        clock.start();
        EXPECT_EQ(data(format), std::nullopt);
        return clock.elapsed();
    }
    /// Copies two formats, and returns when the pasteboard knows.
    void copy(Owner owner) {
        const auto before = pasteboard->changeCount();
        server.copy({text, "image/png"}, std::move(owner));
        EXPECT_TRUE(waitUntil([&] { return pasteboard->changeCount() > before; }));
    }
    /// Whatever has happened, a good owner is read.
    void expectRecovery() {
        copy(whole("well"));
        EXPECT_EQ(data(), "well");
    }

    /// Somewhat short, so that the tests wait less.
    ReadingLimits limits{.patience = 800ms, .size = 210'000'000};
    std::atomic<bool> end = false;
    WaylandServer server{{GetParam()}};
    std::unique_ptr<Pasteboard> pasteboard = open();
};

INSTANTIATE_TEST_SUITE_P(Protocols, WaylandPasteboardTest,
                         testing::Values(&extDataControl(), &wlrDataControl()),
                         [](const auto& tested) {
                             return tested.param == &extDataControl() ? "ext" : "wlr";
                         });

TEST_P(WaylandPasteboardTest, ReadsWhatIsCopiedAndAsksForNothingElse) {
    EXPECT_EQ(pasteboard->way(), GetParam()->way);
    EXPECT_THAT(await(pasteboard->formats()), IsEmpty());
    EXPECT_EQ(data(), std::nullopt);
    copy(
        [](const std::string& format, Descriptor into) { whole(format)(format, std::move(into)); });
    const auto copied = pasteboard->changeCount();
    EXPECT_THAT(await(pasteboard->formats()), ElementsAre(text, "image/png"));
    for (const char* never : {"text/plain", "text/marked", ""})
        EXPECT_EQ(data(never), std::nullopt);
    EXPECT_EQ(server.requests(), 0);
    const auto first = pasteboard->data(text);
    const auto second = pasteboard->data("image/png");
    EXPECT_EQ(await(first), text);
    EXPECT_EQ(await(second), "image/png");
    EXPECT_EQ(server.overlaps(), 0);
    EXPECT_EQ(pasteboard->changeCount(), copied);
    pasteboard = open();
    EXPECT_EQ(data(), text) << "what was copied before";
}

TEST_P(WaylandPasteboardTest, TakesAllOfALargeContentAndNothingOfATooLargeOne) {
    const std::string large(200'000'000, 'x');
    copy([&](const std::string& format, Descriptor into) {
        std::ignore = writeAll(into.number(), large);
        if (format == "image/png") std::ignore = writeAll(into.number(), large);
    });
    EXPECT_TRUE(data() == QByteArray::fromStdString(large));
    EXPECT_EQ(data("image/png"), std::nullopt);
    expectRecovery();
}

TEST_P(WaylandPasteboardTest, GivesUpOnceOnAnOwnerThatHangsUntilItAnswersAfterAll) {
    for (const char* part : {"", "half of it"}) {
        end = false;
        copy(stuck(part, end));
        const int asked = server.requests();
        EXPECT_GE(noneAfter(), limits.patience.count());
        EXPECT_LT(noneAfter("image/png"), promptly) << "it counts as silent";
        EXPECT_EQ(server.requests(), asked + 1);
        const auto changes = pasteboard->changeCount();
        end = true;
        EXPECT_TRUE(waitUntil([&] { return pasteboard->changeCount() > changes; }));
        EXPECT_EQ(data(), *part ? std::optional<QByteArray>{part} : std::nullopt);
    }
    expectRecovery();
}

TEST_P(WaylandPasteboardTest, LimitsAnOwnerThatDripsInAll) {
    limits.transfer = 700ms;
    pasteboard = open();
    copy([&](const std::string& /*format*/, Descriptor into) {
        while (writeAll(into.number(), "."))
            std::this_thread::sleep_for(20ms);
    });
    EXPECT_GE(noneAfter(), limits.transfer.count());
    EXPECT_LT(noneAfter(), promptly);
    expectRecovery();
}

TEST_P(WaylandPasteboardTest, TakesNothingOfAnOwnerThatDiesOrIsReplaced) {
    const std::vector<Owner> owners{[](const std::string&, Descriptor) {},
                                    [this](const std::string&, Descriptor into) {
                                        std::ignore = writeAll(into.number(), "half of it");
                                        server.die(std::move(into));
                                    },
                                    [this](const std::string& format, Descriptor into) {
                                        server.copy({text}, whole("new"));
                                        stuck("half of it", end)(format, std::move(into));
                                    }};
    for (const Owner& owner : owners) {
        copy(owner);
        EXPECT_LT(noneAfter(), promptly);
    }
    EXPECT_EQ(data(), "new");
}

TEST_P(WaylandPasteboardTest, OutlivesItsCompositorAndFindsTheNext) {
    const auto copyAndAsk = [this] {
        const int asked = server.requests();
        copy(stuck("half of it", end));
        const auto answer = pasteboard->data(text);
        EXPECT_TRUE(waitUntil([&] { return server.requests() > asked; }));
        return answer;
    };
    auto answer = copyAndAsk();
    const auto changes = pasteboard->changeCount();
    server.stop();
    EXPECT_EQ(await(answer), std::nullopt);
    EXPECT_TRUE(waitUntil([&] { return pasteboard->way() == ClipboardWay::none; }));
    EXPECT_GT(pasteboard->changeCount(), changes);
    EXPECT_LT(noneAfter(), promptly);
    server.start();
    server.copy({text}, whole("new"));
    EXPECT_EQ(data(), "new");
    EXPECT_EQ(pasteboard->way(), GetParam()->way);
    answer = copyAndAsk();
    server.finishDevices();
    EXPECT_EQ(await(answer), std::nullopt);
    server.copy({text}, whole("newer"));
    EXPECT_EQ(data(), "newer");
    answer = copyAndAsk();
    pasteboard.reset();
    EXPECT_TRUE(answer.isFinished());
}

TEST_P(WaylandPasteboardTest, WaitsForNoCompositorThatDoesNotAnswer) {
    auto hanging = server.hang();
    QElapsedTimer clock;
    clock.start();
    pasteboard = open();
    EXPECT_GE(clock.elapsed(), limits.patience.count());
    EXPECT_EQ(pasteboard->way(), ClipboardWay::none);
    EXPECT_LT(noneAfter(), promptly);
    hanging.unlock();
    EXPECT_TRUE(waitUntil([&] { return pasteboard->way() == GetParam()->way; }));
    expectRecovery();
}

TEST(OpenPasteboard, TakesTheBestWayThatTheDesktopOffers) {
    const XServer x11;
    const WaylandServer both{{&wlrDataControl(), &extDataControl()}};
    const WaylandServer onlyWlr{{&wlrDataControl()}};
    const WaylandServer neither{{}};
    const std::vector<std::tuple<const char*, const char*, ClipboardWay>> cases{
        {both.display(), x11.display(), ClipboardWay::extDataControl},
        {onlyWlr.display(), ":none", ClipboardWay::wlrDataControl},
        {neither.display(), x11.display(), ClipboardWay::x11},
        {"/no/such/display", x11.display(), ClipboardWay::x11},
        {"", x11.display(), ClipboardWay::x11},
        {neither.display(), ":none", ClipboardWay::none},
    };
    qunsetenv("XDG_SESSION_TYPE");
    for (const auto& [wayland, display, way] : cases) {
        qputenv("WAYLAND_DISPLAY", wayland);
        qputenv("DISPLAY", display);
        EXPECT_EQ(openPasteboard()->way(), way) << wayland << " " << display;
    }
}

} // namespace quillon::test
