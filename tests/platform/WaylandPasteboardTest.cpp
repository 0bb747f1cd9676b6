#include "platform/linux/OpenPasteboard.h"
#include "platform/linux/pasteboard/ThreadedPasteboard.h"
#include "platform/linux/wayland/DataControlReader.h"
#include "support/Await.h"
#include "support/WaylandServer.h"
#include "support/XServer.h"

#include <QElapsedTimer>

namespace quillon::test {

using Then = WaylandServer::Then;
constexpr const char* text = "text/plain;charset=utf-8";
constexpr qint64 soon = 600; // ms: sooner than the reader's patience

struct WaylandPasteboardTest : testing::TestWithParam<const DataControlProtocol*> {
    std::unique_ptr<Pasteboard> open() {
        const auto openReader = [this](const ReaderHost& host) {
            return DataControlReader::open(server.display(), host);
        };
        return std::make_unique<ThreadedPasteboard>(openReader, limits);
    }
    /// Returns when the pasteboard knows.
    void copy(std::string content, Then then = Then::close) {
        const auto before = pasteboard->changeCount();
        server.copy({text, "image/png"}, std::move(content), then);
        EXPECT_TRUE(waitUntil([&] { return pasteboard->changeCount() > before; }));
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
    /// The owner has been asked, and holds on to half of its content.
    QFuture<std::optional<QByteArray>> halfRead() {
        const auto before = server.asked().size();
        copy("half of it", Then::hold);
        auto answer = pasteboard->data(text);
        EXPECT_TRUE(waitUntil([&] { return server.asked().size() > before; }));
        return answer;
    }

    ReadingLimits limits{.patience = 800ms, .transfer = 10s};
    WaylandServer server{{GetParam()}};
    std::unique_ptr<Pasteboard> pasteboard = open();
};

INSTANTIATE_TEST_SUITE_P(Protocols, WaylandPasteboardTest,
                         testing::Values(&extDataControl(), &wlrDataControl()),
                         [](const auto& tested) { return tested.index == 0 ? "ext" : "wlr"; });

TEST_P(WaylandPasteboardTest, ReadsWhatIsCopiedAndAsksForNothingElse) {
    EXPECT_EQ(pasteboard->way(), GetParam()->way);
    EXPECT_THAT(await(pasteboard->formats()), IsEmpty());
    copy("one");
    const auto copied = pasteboard->changeCount();
    EXPECT_THAT(await(pasteboard->formats()), ElementsAre(text, "image/png"));
    for (const char* never : {"text/plain", "text/marked", ""})
        EXPECT_EQ(data(never), std::nullopt);
    EXPECT_EQ(data(), "one");
    EXPECT_EQ(pasteboard->changeCount(), copied);
    pasteboard = open();
    EXPECT_EQ(data("image/png"), "one") << "what was copied before";
    EXPECT_THAT(server.asked(), ElementsAre(text, "image/png"));
}

TEST_P(WaylandPasteboardTest, TakesAllOfALargeContentAndNothingOfATooLargeOne) {
    const std::string large(200'000'000, 'x');
    copy(large);
    EXPECT_TRUE(data() == QByteArray::fromStdString(large));
    limits.size = 199'999'999;
    pasteboard = open();
    EXPECT_EQ(data(), std::nullopt);
}

TEST_P(WaylandPasteboardTest, GivesUpOnceOnAnOwnerThatHangsUntilItAnswersAfterAll) {
    for (const char* part : {"", "half of it"}) {
        copy(part, Then::hold);
        const auto asked = server.asked().size();
        EXPECT_GE(noneAfter(), limits.patience.count());
        EXPECT_LT(noneAfter("image/png"), soon) << "it counts as silent";
        const auto changes = pasteboard->changeCount();
        server.release();
        EXPECT_TRUE(waitUntil([&] { return pasteboard->changeCount() > changes; }));
        EXPECT_EQ(server.asked().size(), asked + 1);
        const auto answer = pasteboard->data(text);
        EXPECT_TRUE(waitUntil([&] { return server.asked().size() == asked + 2; }));
    }
    copy("well");
    EXPECT_EQ(data(), "well");
}

TEST_P(WaylandPasteboardTest, LimitsAnOwnerThatDripsInAll) {
    limits.transfer = 700ms;
    pasteboard = open();
    QElapsedTimer clock;
    clock.start();
    const auto answer = halfRead();
    EXPECT_TRUE(waitUntil([&] { return answer.isFinished() || !server.drip(); }));
    EXPECT_EQ(await(answer), std::nullopt);
    EXPECT_GE(clock.elapsed(), limits.transfer.count());
    EXPECT_LT(noneAfter(), soon);
}

TEST_P(WaylandPasteboardTest, TakesNothingOfAnOwnerThatDiesOrIsReplaced) {
    copy("");
    EXPECT_LT(noneAfter(), soon);
    copy("half of it", Then::die);
    EXPECT_LT(noneAfter(), soon);
    const auto answer = halfRead();
    copy("new");
    EXPECT_EQ(await(answer), std::nullopt);
    EXPECT_EQ(data(), "new");
}

TEST_P(WaylandPasteboardTest, OutlivesItsCompositorAndFindsTheNext) {
    auto answer = halfRead();
    server.stop();
    EXPECT_EQ(await(answer), std::nullopt);
    EXPECT_TRUE(waitUntil([&] { return pasteboard->way() == ClipboardWay::none; }));
    EXPECT_LT(noneAfter(), soon);
    server.start();
    server.copy({text}, "new");
    EXPECT_EQ(data(), "new");
    EXPECT_EQ(pasteboard->way(), GetParam()->way);
    answer = halfRead();
    server.finishDevices();
    EXPECT_EQ(await(answer), std::nullopt);
    server.copy({text}, "newer");
    EXPECT_EQ(data(), "newer");
    answer = halfRead();
    pasteboard.reset();
    EXPECT_EQ(await(answer), std::nullopt);
}

TEST_P(WaylandPasteboardTest, WaitsForNoCompositorThatDoesNotAnswer) {
    {
        const std::lock_guard hanging{server.mutex()};
        QElapsedTimer clock;
        clock.start();
        pasteboard = open();
        EXPECT_GE(clock.elapsed(), limits.patience.count());
        EXPECT_LT(noneAfter(), soon);
    }
    EXPECT_TRUE(waitUntil([&] { return pasteboard->way() == GetParam()->way; }));
    copy("well");
    EXPECT_EQ(data(), "well");
}

TEST(OpenPasteboard, TakesTheBestWayThatTheDesktopOffers) {
    const XServer x11;
    const WaylandServer both{{&wlrDataControl(), &extDataControl()}};
    const WaylandServer wlr{{&wlrDataControl()}};
    const WaylandServer neither{{}};
    qunsetenv("XDG_SESSION_TYPE");
    for (const auto& [wayland, display, way] :
         std::vector<std::tuple<const char*, const char*, ClipboardWay>>{
             {both.display(), x11.display(), ClipboardWay::extDataControl},
             {wlr.display(), ":none", ClipboardWay::wlrDataControl},
             {neither.display(), x11.display(), ClipboardWay::x11},
             {"/no/such/display", x11.display(), ClipboardWay::x11},
             {"", x11.display(), ClipboardWay::x11},
             {neither.display(), ":none", ClipboardWay::none}}) {
        qputenv("WAYLAND_DISPLAY", wayland);
        qputenv("DISPLAY", display);
        EXPECT_EQ(openPasteboard()->way(), way) << wayland << " " << display;
    }
}

} // namespace quillon::test
