#include "support/Controls.h"
#include "artwork/Palette.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/SegmentedPicker.h"
#include "ui/controls/Spinner.h"
#include "ui/controls/Switch.h"
#include "ui/theme/Motion.h"

#include <QRadioButton>
#include <QSignalSpy>
#include <QVBoxLayout>

namespace quillon::test {
namespace {

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
    EXPECT_EQ(nameOf(spinner), QLatin1String{"Working"});
    spinner.hide();
    EXPECT_FALSE(spinner.turning());
    EXPECT_FALSE(accessible(spinner).state().busy);
    setAnimationsEnabled(false);
    spinner.show();
    EXPECT_FALSE(spinner.turning());
    setAnimationsEnabled({});
}

TEST(ContentButton, WhileBusyIsDisabledButNotFaded) {
    ContentButton button;
    auto* inner = new QWidget; // as deep as a view can be
    (new QVBoxLayout{&button})->addWidget(inner);
    auto* label = new IconLabel{QStringLiteral("Send clipboard")};
    (new QVBoxLayout{inner})->addWidget(label);
    const QSignalSpy clicks{&button, &QPushButton::clicked};
    const QColor ink = Theme{*label}.color(Ink::primary);
    const Controls controls{button};
    button.setBusy(true);
    controls.click<IconLabel>("Send clipboard");
    QTest::keyClick(&button, Qt::Key_Return);
    EXPECT_TRUE(clicks.isEmpty());
    EXPECT_TRUE(accessible(button).state().busy);
    EXPECT_TRUE(accessible(button).state().disabled);
    EXPECT_EQ(Theme{*label}.color(Ink::primary), ink);
    button.setBusy(false);
    controls.click<IconLabel>("Send clipboard");
    EXPECT_EQ(clicks.size(), 1);
    button.setEnabled(false);
    EXPECT_NE(Theme{*label}.color(Ink::primary), ink);
}

} // namespace
} // namespace quillon::test
