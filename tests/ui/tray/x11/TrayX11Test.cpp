#include "FakeTray.h"
#include "ui/tray/TrayDesktop.h"

namespace quillon::test {

namespace {

using TrayX11Test = TrayTest<TestComputer>;

} // namespace

TEST_F(TrayX11Test, IsThereWheneverATrayIs) {
    EXPECT_TRUE(becomesMissing()) << "nobody has a place for it";
    auto tray = std::make_unique<FakeTray>();
    ASSERT_TRUE(waitUntil([&] { return tray->hasIcon(); }));
    EXPECT_FALSE(icon.missing());
    // The mapping of the icon's window may still be on its way.
    ASSERT_TRUE(waitUntil([&] {
        tray->click();
        QCoreApplication::processEvents();
        return toggles > 0;
    }));
    EXPECT_EQ(place, (QRect{200, 0, 24, 24})) << "from where the panel is to hang";
    tray.reset();
    EXPECT_TRUE(becomesMissing());
    FakeTray another;
    EXPECT_TRUE(waitUntil([&] { return another.hasIcon(); }));
    EXPECT_FALSE(icon.missing());
}

TEST_F(TrayX11Test, TellsOfTheTraysColourAlsoWhenItChangesLater) {
    TrayWatch watch;
    int told = 0;
    QObject::connect(&watch, &TrayWatch::recoloured, &watch, [&] { ++told; });
    FakeTray tray;
    ASSERT_TRUE(waitUntil([&] { return tray.hasIcon(); }));
    EXPECT_EQ(watch.foreground(), std::nullopt);
    for (const QColor& colour : {QColor{Qt::white}, QColor{10, 20, 30}}) {
        const int before = told;
        tray.setColour(colour);
        ASSERT_TRUE(waitUntil([&] { return told > before; }));
        EXPECT_EQ(watch.foreground()->rgb(), colour.rgb());
    }
}

} // namespace quillon::test

int main(int argc, char** argv) {
    return quillon::test::runOnDesktop(argc, argv);
}
