#include "maintenance/MessageBoxAlerts.h"
#include "support/Await.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>

namespace quillon::test {
namespace {

const Alert question{.warning = true,
                     .message = "Move <b>it</b>?",
                     .informativeText = "It needs to.",
                     .buttons = {"Move", "Later", "Not now"}};

QMessageBox* box() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* found = qobject_cast<QMessageBox*>(window); found && found->isVisible())
            return found;
    return nullptr;
}

void press(QWidget* widget, Qt::Key key) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event{type, key, Qt::NoModifier};
        QApplication::sendEvent(widget, &event);
    }
}

QPushButton* button(const char* text) {
    for (auto* each : box()->findChildren<QPushButton*>())
        if (each->text() == QLatin1String{text}) return each;
    return nullptr;
}

TEST(MessageBoxAlertsTest, AnswersWithTheButtonHoweverItWasPressed) {
    struct Case {
        const char* how;
        std::function<void()> answer;
        std::size_t expected;
    };
    const Case cases[]{
        {"Return", [] { press(box(), Qt::Key_Return); }, 0},
        {"Escape", [] { press(box(), Qt::Key_Escape); }, 2},
        {"closed", [] { box()->close(); }, 2},
        {"first", [] { button("Move")->click(); }, 0},
        {"second", [] { button("Later")->click(); }, 1},
    };
    for (const Case& each : cases) {
        QFuture<std::size_t> answer = MessageBoxAlerts{}.show(question);
        ASSERT_TRUE(box()) << "it is shown without a turn of the event loop";
        EXPECT_FALSE(answer.isFinished());
        each.answer();
        EXPECT_EQ(await(answer), each.expected) << each.how;
        EXPECT_FALSE(box());
    }
}

TEST(MessageBoxAlertsTest, ShowsItsTextAsItIsToEverybody) {
    auto answer = MessageBoxAlerts{}.show(question);
    EXPECT_EQ(box()->text(), QLatin1String{"Move <b>it</b>?"});
    EXPECT_EQ(box()->textFormat(), Qt::PlainText);
    EXPECT_EQ(box()->icon(), QMessageBox::Warning);
    EXPECT_TRUE(box()->isModal());
    QStringList spoken;
    for (const QWidget* each : box()->findChildren<QWidget*>()) {
        auto* interface = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(each));
        if (interface) spoken += interface->text(QAccessible::Name);
    }
    for (const char* text : {"Move <b>it</b>?", "It needs to.", "Move", "Not now"})
        EXPECT_TRUE(spoken.contains(QLatin1String{text})) << text;
    box()->close();
    await(answer);
}

} // namespace
} // namespace quillon::test
