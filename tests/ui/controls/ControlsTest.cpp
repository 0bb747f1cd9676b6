#include "Accessible.h"

#include "artwork/Palette.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/SegmentedPicker.h"
#include "ui/controls/Spinner.h"
#include "ui/controls/Switch.h"
#include "ui/text/IconLabel.h"
#include "ui/theme/Motion.h"

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

TEST(Switch, TellsOnlyOfWhatTheUserSwitched) {
    Switch view{QStringLiteral("Sound"), "power", Palette::pink};
    const QSignalSpy switched{&view, &Switch::switched};
    view.showOn(true);
    EXPECT_TRUE(view.isChecked());
    EXPECT_TRUE(switched.isEmpty());
    view.click();
    EXPECT_EQ(switched.size(), 1);
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

} // namespace
} // namespace quillon::test
