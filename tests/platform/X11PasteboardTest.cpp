#include "platform/linux/pasteboard/ThreadedPasteboard.h"
#include "platform/linux/x11/SelectionReader.h"

#include "platform/SelectionOwner.h"
#include "support/Await.h"
#include "support/XServer.h"

#include <QElapsedTimer>

#include <array>
#include <semaphore>

namespace quillon::test {

constexpr qint64 promptly = 800; // ms: sooner than the reader's patience

struct X11PasteboardTest : testing::Test {
    std::optional<QByteArray> data(const char* format) { return await(pasteboard->data(format)); }

    std::unique_ptr<Pasteboard> open() {
        return std::make_unique<ThreadedPasteboard>([this](const ReaderHost& host) {
            return SelectionReader::open(server.display(), host);
        });
    }

    XServer server;
    std::unique_ptr<Pasteboard> pasteboard = open();
};

TEST_F(X11PasteboardTest, CountsCopiesAndTheOwnersEnd) {
    EXPECT_THAT(await(pasteboard->formats()), IsEmpty());
    const auto atFirst = pasteboard->changeCount();
    auto owner = std::make_unique<SelectionOwner>(
        server.display(), std::map<std::string, SelectionOwner::Answer>{
                              {"UTF8_STRING", whole("one", "UTF8_STRING")}});
    EXPECT_EQ(data("UTF8_STRING"), "one");
    const auto copied = pasteboard->changeCount();
    EXPECT_GT(copied, atFirst);
    EXPECT_EQ(data("UTF8_STRING"), "one");
    EXPECT_EQ(pasteboard->changeCount(), copied);
    owner.reset();
    EXPECT_TRUE(waitUntil([&] { return pasteboard->changeCount() > copied; }));
    EXPECT_THAT(await(pasteboard->formats()), IsEmpty());
}

TEST_F(X11PasteboardTest, GivesUpOnceOnAnOwnerThatHangsAndHoldsUpNobody) {
    const auto name = [](SelectionOwner& owner, const SelectionOwner::Request& request) {
        constexpr std::array targets{XCB_ATOM_STRING, XCB_ATOM_BITMAP};
        owner.write(request, "ATOM", 32, {reinterpret_cast<const char*>(&targets), sizeof targets});
        owner.notify(request);
    };
    std::optional<SelectionOwner> owner;
    owner.emplace(server.display(),
                  std::map<std::string, SelectionOwner::Answer>{
                      {"TARGETS", name}, {"STRING", silence()}, {"BITMAP", silence()}});
    QElapsedTimer clock;
    clock.start();
    const auto formats = pasteboard->formats();
    const auto text = pasteboard->data("STRING");
    const auto bitmap = pasteboard->data("BITMAP");
    EXPECT_LT(clock.elapsed(), promptly);
    EXPECT_THAT(await(formats), ElementsAre("STRING", "BITMAP"));
    EXPECT_EQ(await(text), std::nullopt);
    EXPECT_EQ(await(bitmap), std::nullopt);
    EXPECT_GE(clock.elapsed(), 990);
    EXPECT_LT(clock.elapsed(), 1950) << "one patience for all questions";
    clock.start();
    EXPECT_THAT(await(pasteboard->formats()), IsEmpty()) << "it counts as silent";
    EXPECT_LT(clock.elapsed(), promptly);
    owner.emplace(server.display(), std::map<std::string, SelectionOwner::Answer>{
                                        {"STRING", whole("new", "STRING")}});
    EXPECT_EQ(data("STRING"), "new");
}

TEST_F(X11PasteboardTest, TakesALateAnswerForNoLaterQuestionButAsASignOfLife) {
    std::binary_semaphore go{0};
    const auto hesitate = [&go, first = true](SelectionOwner& owner,
                                              const SelectionOwner::Request& request) mutable {
        if (first) go.acquire();
        whole(std::exchange(first, false) ? "late" : "right", "UTF8_STRING")(owner, request);
    };
    const SelectionOwner owner{server.display(), {{"UTF8_STRING", hesitate}}};
    EXPECT_EQ(data("UTF8_STRING"), std::nullopt);
    const auto changes = pasteboard->changeCount();
    go.release();
    ASSERT_TRUE(waitUntil([&] { return pasteboard->changeCount() > changes; }));
    EXPECT_EQ(data("UTF8_STRING"), "right");
}

TEST_F(X11PasteboardTest, ReceivesPiecesAsLongAsTheyKeepComing) {
    const QByteArray large(3'000'000, 'b');
    const auto dribble = [&](SelectionOwner& owner, const SelectionOwner::Request& request) {
        owner.writePieces(request, "UTF8_STRING", {"a", large, QByteArray{"\0d", 2}}, 450ms);
    };
    const auto stall = [](SelectionOwner& owner, const SelectionOwner::Request& request) {
        owner.writePieces(request, "text/html", {"<p>"}, 0ms, false);
    };
    const SelectionOwner owner{server.display(), {{"UTF8_STRING", dribble}, {"text/html", stall}}};
    const QByteArray all = "a" + large + QByteArray{"\0d", 2};
    EXPECT_TRUE(data("UTF8_STRING") == all);
    EXPECT_EQ(data("a target that no program ever named"), std::nullopt);
    EXPECT_TRUE(data("UTF8_STRING") == all);
    EXPECT_EQ(data("text/html"), std::nullopt);
}

TEST_F(X11PasteboardTest, TakesNoAnswerOfAWrongType) {
    const auto pieces = [](SelectionOwner& owner, const SelectionOwner::Request& request) {
        owner.writePieces(request, "STRING", {"caf\xe9"}, 0ms);
    };
    const auto huge = [](SelectionOwner& owner, const SelectionOwner::Request& request) {
        owner.write(request, "INCR", 32, QByteArray(4, '\x7f'));
        owner.notify(request);
    };
    const SelectionOwner owner{server.display(),
                               {{"TARGETS", whole("1234", "STRING")},
                                {"UTF8_STRING", pieces},
                                {"STRING", whole("caf\xc3\xa9", "UTF8_STRING")},
                                {"image/bmp", huge},
                                {"text/plain", whole("text", "STRING")}}};
    EXPECT_THAT(await(pasteboard->formats()), IsEmpty());
    for (const char* format : {"UTF8_STRING", "STRING", "image/bmp"})
        EXPECT_EQ(data(format), std::nullopt) << format;
    EXPECT_EQ(data("text/plain"), "text");
}

TEST_F(X11PasteboardTest, FinishesWhatIsOutstandingWhenItOrItsServerEnds) {
    const SelectionOwner owner{server.display(), {{"UTF8_STRING", silence()}}};
    const auto expectEnd = [&](int asked, const std::function<void()>& end) {
        const auto first = pasteboard->data("UTF8_STRING");
        const auto second = pasteboard->formats();
        ASSERT_TRUE(waitUntil([&] { return owner.requests() == asked; }));
        QElapsedTimer clock;
        clock.start();
        end();
        EXPECT_EQ(await(first), std::nullopt);
        EXPECT_THAT(await(second), IsEmpty());
        EXPECT_LT(clock.elapsed(), promptly);
    };
    expectEnd(1, [this] { pasteboard.reset(); });
    pasteboard = open();
    const auto changes = pasteboard->changeCount();
    expectEnd(2, [this] { server.stop(); });
    EXPECT_EQ(data("UTF8_STRING"), std::nullopt);
    EXPECT_GT(pasteboard->changeCount(), changes);
}

} // namespace quillon::test
