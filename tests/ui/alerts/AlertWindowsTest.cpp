#include "ui/alerts/AlertWindows.h"

#include "support/Await.h"
#include "support/Controls.h"
#include "support/FakeDesktop.h"

namespace quillon::test {
namespace {

FakeWorkspace workspace;

const Alert question{.warning = true,
                     .message = "Move <b>it</b> **now**?",
                     .informativeText = "It needs to.",
                     .buttons = {"Move", "Later", "Not now"}};

TEST(AlertWindowsTest, AnswersWithTheButtonHoweverItWasPressed) {
    const auto key = [](Qt::Key each) {
        return [each](QWidget& window) { QTest::keyClick(&window, each); };
    };
    const auto click = [](const char* name) {
        return [name](QWidget& window) { Controls{window}.click(name); };
    };
    const std::tuple<const char*, std::function<void(QWidget & window)>, std::size_t> cases[]{
        {"Return", key(Qt::Key_Return), 0}, {"Enter", key(Qt::Key_Enter), 0},
        {"Escape", key(Qt::Key_Escape), 2}, {"closed", [](QWidget& window) { window.close(); }, 2},
        {"first", click("Move"), 0},        {"second", click("Later"), 1},
    };
    for (const auto& [how, leave, expected] : cases) {
        QFuture<std::size_t> answer = AlertWindows{workspace}.show(question);
        ASSERT_TRUE(shownWindow()) << "it is shown without a turn of the event loop";
        EXPECT_FALSE(answer.isFinished());
        leave(*shownWindow());
        EXPECT_EQ(await(answer), expected) << how;
        EXPECT_FALSE(shownWindow());
    }
}

TEST(AlertWindowsTest, ShowsItsTextAsItIsToEverybody) {
    auto answer = AlertWindows{workspace}.show(question);
    QWidget& window = *shownWindow();
    EXPECT_TRUE(window.isModal());
    const Controls controls{window};
    for (const char* text : {"Move <b>it</b> **now**?", "It needs to.", "Move", "Not now"})
        EXPECT_TRUE(controls.shows(text)) << text;
    EXPECT_EQ(accessible(window).role(), QAccessible::AlertMessage);
    EXPECT_EQ(nameOf(window), QLatin1String{"Move <b>it</b> **now**?"});
    EXPECT_EQ(accessible(window).text(QAccessible::Description), QLatin1String{"It needs to."});
    window.close();
    await(answer);
}

TEST(AlertWindowsTest, StaysASmallWindowHoweverLongItsText) {
    std::string sentences;
    while (sentences.size() < 2'000)
        sentences += "The folder could not be written. ";
    for (const std::string& text : {sentences, std::string(400, 'x')}) {
        Alert alert = question;
        alert.informativeText = text;
        auto answer = AlertWindows{workspace}.show(alert);
        QWidget& window = *shownWindow();
        EXPECT_LE(window.width(), 700);
        EXPECT_LE(window.height(), 500);
        EXPECT_TRUE(Controls{window}.shows(text));
        window.close();
        await(answer);
    }
}

} // namespace
} // namespace quillon::test
