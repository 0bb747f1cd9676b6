#include "Accessible.h"

#include "artwork/Palette.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/SegmentedPicker.h"
#include "ui/controls/Spinner.h"
#include "ui/controls/Switch.h"
#include "ui/text/IconLabel.h"
#include "ui/theme/Motion.h"

#include <QApplication>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace quillon::test {
namespace {

void show(QWidget& window) {
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

const QStringList shortcuts{QStringLiteral("V"), QStringLiteral("P"), QStringLiteral("C")};

TEST(SegmentedPicker, IsOneTabStopWhoseArrowKeysPick) {
    QWidget window;
    auto* column = new QVBoxLayout{&window};
    auto* before = new QLineEdit;
    auto* picker = new SegmentedPicker{shortcuts};
    auto* after = new QLineEdit;
    for (QWidget* each : std::initializer_list<QWidget*>{before, picker, after})
        column->addWidget(each);
    picker->setCurrentIndex(1);
    const QSignalSpy picked{picker, &SegmentedPicker::picked};
    show(window);
    before->setFocus();
    const auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };

    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget()->parentWidget(), picker);
    press(Qt::Key_Right);
    EXPECT_EQ(picker->currentIndex(), 2);
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_EQ(picker->currentIndex(), 0);
    EXPECT_EQ(picked.size(), 3);
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), after);
    QTest::keyClick(after, Qt::Key_Backtab, Qt::ShiftModifier);
    window.setLayoutDirection(Qt::RightToLeft);
    press(Qt::Key_Left);
    EXPECT_EQ(picker->currentIndex(), 1) << "where the next one is on the left";
}

TEST(SegmentedPicker, TellsOnlyOfWhatTheUserPicked) {
    SegmentedPicker picker{shortcuts};
    const auto segments = picker.findChildren<QRadioButton*>();
    const QSignalSpy picked{&picker, &SegmentedPicker::picked};
    picker.setCurrentIndex(2);
    picker.setCurrentIndex(-1);
    EXPECT_FALSE(segments[2]->isChecked());
    picker.setCurrentIndex(1);
    EXPECT_TRUE(accessible(*segments[1]).state().checked);
    EXPECT_EQ(accessible(*segments[1]).role(), QAccessible::RadioButton);
    EXPECT_TRUE(picked.isEmpty());
    segments[1]->click();
    EXPECT_TRUE(picked.isEmpty()) << "picked what was picked already";
    segments[0]->click();
    EXPECT_EQ(picked.size(), 1);
    EXPECT_EQ(picker.currentIndex(), 0);
}

TEST(Switch, EveryWayToSwitchItWorksOverTheWholeRow) {
    Switch view{QStringLiteral("Play a &sound"), "power", Palette::pink};
    view.resize(400, view.heightForWidth(400));
    show(view);
    view.setFocus();
    const QSignalSpy switched{&view, &Switch::switched};
    QTest::mouseClick(&view, Qt::LeftButton, {}, {200, view.height() / 2});
    EXPECT_TRUE(view.isChecked()) << "the empty middle of the row";
    QTest::keyClick(&view, Qt::Key_Space);
    EXPECT_FALSE(view.isChecked());
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_TRUE(view.isChecked());
    QTest::keyClick(&view, Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !view.isChecked(); }));
    accessible(view).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(view.isChecked());
    EXPECT_EQ(switched.size(), 5);
    view.showOn(false);
    EXPECT_FALSE(view.isChecked());
    EXPECT_EQ(switched.size(), 5) << "what it shows was not switched";
    EXPECT_EQ(accessible(view).role(), QAccessible::CheckBox);
    EXPECT_EQ(accessibleName(view), "Play a sound");
}

TEST(Switch, ALongTitleWrapsInsteadOfPushingTheSwitchOut) {
    const Switch shortTitle{QStringLiteral("Sound"), "power", Palette::pink};
    const Switch longTitle{QStringLiteral("word ").repeated(60), "power", Palette::pink};
    EXPECT_EQ(shortTitle.heightForWidth(400), shortTitle.sizeHint().height());
    EXPECT_GT(longTitle.heightForWidth(400), 2 * shortTitle.heightForWidth(400));
    EXPECT_LT(longTitle.minimumSizeHint().width(), 200);
}

TEST(Spinner, TurnsOnlyWhileItShowsAndThingsMayMove) {
    setAnimationsEnabled(true);
    Spinner spinner;
    EXPECT_FALSE(spinner.turning());
    spinner.show();
    EXPECT_TRUE(spinner.turning());
    EXPECT_TRUE(accessible(spinner).state().busy);
    EXPECT_EQ(accessibleName(spinner), "Working");
    spinner.hide();
    EXPECT_FALSE(spinner.turning());
    EXPECT_FALSE(accessible(spinner).state().busy);
    setAnimationsEnabled(false);
    spinner.show();
    EXPECT_FALSE(spinner.turning());
    setAnimationsEnabled({});
}

class ContentButtonTest : public testing::Test {
protected:
    ContentButtonTest() {
        auto* column = new QVBoxLayout{&button_};
        auto* inner = new QWidget; // as deep as a view can be
        (new QVBoxLayout{inner})->addWidget(label_);
        column->addWidget(inner);
        button_.setAccessibleName(QStringLiteral("Send clipboard to phone"));
        QObject::connect(&button_, &QPushButton::clicked, &button_, [this] { ++clicks_; });
    }

    /// A click where the label is, which goes to whatever lies on top there.
    void clickLabel() {
        const QPoint place = label_->mapTo(&button_, label_->rect().center());
        QWidget* hit = button_.childAt(place);
        QTest::mouseClick(hit ? hit : &button_, Qt::LeftButton, {}, place);
    }

    ContentButton button_;
    IconLabel* label_ = new IconLabel{QStringLiteral("Send clipboard")};
    int clicks_ = 0;
};

TEST_F(ContentButtonTest, IsPressedThroughItsViewsByKeysAndByAssistiveTechnology) {
    show(button_);
    clickLabel();
    EXPECT_EQ(clicks_, 1);
    QTest::keyClick(&button_, Qt::Key_Return);
    QTest::keyClick(&button_, Qt::Key_Space);
    EXPECT_EQ(clicks_, 3);
    QAccessibleActionInterface* actions = accessible(button_).actionInterface();
    ASSERT_NE(actions, nullptr);
    EXPECT_EQ(actions->actionNames().value(0), QAccessibleActionInterface::pressAction());
    actions->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks_, 4);
    EXPECT_EQ(accessible(button_).role(), QAccessible::Button);
    EXPECT_EQ(accessibleName(button_), "Send clipboard to phone");
}

TEST_F(ContentButtonTest, WhileBusyItIsDisabledButNotFaded) {
    const QColor ink = Theme{*label_}.color(Ink::primary);
    show(button_);
    button_.setBusy(true);
    clickLabel();
    QTest::keyClick(&button_, Qt::Key_Return);
    EXPECT_EQ(clicks_, 0);
    EXPECT_TRUE(accessible(button_).state().busy);
    EXPECT_TRUE(accessible(button_).state().disabled);
    EXPECT_EQ(Theme{*label_}.color(Ink::primary), ink);
    button_.setBusy(false);
    clickLabel();
    EXPECT_EQ(clicks_, 1);
    button_.setEnabled(false);
    EXPECT_NE(Theme{*label_}.color(Ink::primary), ink);
}

TEST_F(ContentButtonTest, SaysWhetherItIsSelectedAndOpenOnlyIfItCanBe) {
    EXPECT_FALSE(accessible(button_).state().selectable);
    EXPECT_FALSE(accessible(button_).state().expandable);
    EXPECT_FALSE(accessible(button_).state().collapsed);
    button_.setSelected(true);
    button_.setExpanded(false);
    EXPECT_TRUE(accessible(button_).state().selected);
    EXPECT_TRUE(accessible(button_).state().collapsed);
    button_.setExpanded(true);
    EXPECT_TRUE(accessible(button_).state().expanded);
    EXPECT_FALSE(accessible(button_).state().collapsed);
}

TEST(TextButton, ReturnPressesItAndItsSymbolTakesRoom) {
    TextButton button{QStringLiteral("&Connect"), "link"};
    show(button);
    const QSignalSpy clicked{&button, &QPushButton::clicked};
    QTest::keyClick(&button, Qt::Key_Enter);
    EXPECT_EQ(clicked.size(), 1);
    EXPECT_EQ(accessibleName(button), "Connect");
    EXPECT_GT(button.sizeHint().width(),
              TextButton{QStringLiteral("&Connect")}.sizeHint().width() + 8);
}

} // namespace
} // namespace quillon::test
