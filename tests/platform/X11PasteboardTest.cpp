#include "platform/linux/x11/X11Pasteboard.h"

#include "platform/SelectionOwner.h"
#include "support/Await.h"
#include "support/XServer.h"

#include <QElapsedTimer>

#include <gmock/gmock.h>

namespace quillon::test {

namespace {

using namespace std::chrono_literals;
using testing::IsEmpty;

constexpr qint64 promptly = 800; // ms: sooner than the reader's patience

class X11PasteboardTest : public testing::Test {
protected:
    std::optional<QByteArray> data(const char* format) { return await(pasteboard->data(format)); }

    XServer server;
    std::unique_ptr<X11Pasteboard> pasteboard = X11Pasteboard::open(server.display());
};

} // namespace

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

TEST_F(X11PasteboardTest, GivesUpOnAnOwnerThatHangsAndHoldsUpNobody) {
    const SelectionOwner owner{server.display(), {{"TARGETS", silence()}}};
    QElapsedTimer clock;
    clock.start();
    const auto asked = pasteboard->formats();
    EXPECT_LT(clock.elapsed(), 200);
    EXPECT_THAT(await(asked), IsEmpty());
    EXPECT_GE(clock.elapsed(), 990);
    EXPECT_LT(clock.elapsed(), 2000);
}

TEST_F(X11PasteboardTest, TakesNoLateAnswerForALaterQuestion) {
    std::vector<SelectionOwner::Request> asked;
    const auto answerBelatedly = [&](SelectionOwner& owner,
                                     const SelectionOwner::Request& request) {
        asked.push_back(request);
        if (asked.size() < 2) return;
        whole("late", "UTF8_STRING")(owner, asked.front());
        whole("right", "UTF8_STRING")(owner, request);
    };
    const SelectionOwner owner{server.display(), {{"UTF8_STRING", answerBelatedly}}};
    EXPECT_EQ(data("UTF8_STRING"), std::nullopt);
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
    EXPECT_EQ(data("text/html"), std::nullopt);
    EXPECT_TRUE(data("UTF8_STRING") == all);
    EXPECT_EQ(data("a target that no program ever named"), std::nullopt);
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
    for (const char* format : {"UTF8_STRING", "STRING", "image/bmp"}) {
        EXPECT_EQ(data(format), std::nullopt) << format;
    }
    EXPECT_EQ(data("text/plain"), "text");
}

TEST_F(X11PasteboardTest, FinishesWhatIsOutstandingWhenDestroyed) {
    const SelectionOwner owner{server.display(), {{"UTF8_STRING", silence()}}};
    const auto first = pasteboard->data("UTF8_STRING");
    const auto second = pasteboard->formats();
    ASSERT_TRUE(waitUntil([&] { return owner.requests() == 1; }));
    QElapsedTimer clock;
    clock.start();
    pasteboard.reset();
    EXPECT_LT(clock.elapsed(), promptly);
    EXPECT_EQ(await(first), std::nullopt);
    EXPECT_THAT(await(second), IsEmpty());
}

TEST_F(X11PasteboardTest, SurvivesItsServer) {
    const SelectionOwner owner{server.display(), {{"UTF8_STRING", silence()}}};
    const auto before = pasteboard->data("UTF8_STRING");
    ASSERT_TRUE(waitUntil([&] { return owner.requests() == 1; }));
    const auto changes = pasteboard->changeCount();
    QElapsedTimer clock;
    clock.start();
    server.stop();
    EXPECT_EQ(await(before), std::nullopt);
    EXPECT_THAT(await(pasteboard->formats()), IsEmpty());
    EXPECT_EQ(data("UTF8_STRING"), std::nullopt);
    EXPECT_LT(clock.elapsed(), promptly);
    EXPECT_GT(pasteboard->changeCount(), changes);
}

} // namespace quillon::test
