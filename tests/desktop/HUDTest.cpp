#include "desktop/HUD.h"
#include "desktop/HUDPanel.h"
#include "support/FakeClock.h"
#include "support/FakeCompositor.h"
#include "support/FakeDesktop.h"
#include "ui/theme/Motion.h"

#include <QAnimationDriver>
#include <QScreen>

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace std::chrono_literals;

/// Qt's animations move on when told to.
class Frames : public QAnimationDriver {
public:
    Frames() {
        settle();
        install();
    }

    void advance(std::chrono::milliseconds by) {
        settle();
        elapsed_ += by.count();
        QAnimationDriver::advance();
    }

protected:
    void start() override {
        elapsed_ = 0;
        QAnimationDriver::start();
    }
    [[nodiscard]] qint64 elapsed() const override { return elapsed_; }

private:
    /// Qt begins and ends animations on the next turns of the loop: each one, then their timer.
    static void settle() {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents();
    }

    qint64 elapsed_ = 0;
};

struct HUDTest : testing::Test {
    [[nodiscard]] const HUDPanel* panel() const {
        return dynamic_cast<const HUDPanel*>(hud.panel());
    }
    [[nodiscard]] bool visible() const {
        const bool shows = panel() && panel()->isVisible();
        EXPECT_EQ(hud.visible(), shows);
        return shows;
    }
    [[nodiscard]] double alpha() const { return panel()->alpha(); }
    void good(bool sticky = false) {
        hud.show({.text = "Sent",
                  .symbol = "checkmark.circle.fill",
                  .sticky = sticky,
                  .position = position});
    }
    void bad() { hud.show({.text = "No", .symbol = "exclamationmark.triangle", .ok = false}); }

    test::FakeClock clock;
    Frames frames;
    test::FakeCompositor compositor{true};
    BannerPosition position = BannerPosition::top;
    test::FakeWorkspace workspace;
    HUD hud{clock, compositor, workspace};
};

TEST_F(HUDTest, FadesInStaysAsLongAsItsNewsDeservesAndFadesOut) {
    for (const auto& [ok, stays] : {std::pair{true, 1800ms}, std::pair{false, 3500ms}}) {
        SCOPED_TRACE(ok);
        ok ? good() : bad();
        EXPECT_TRUE(visible());
        EXPECT_EQ(alpha(), 0);
        frames.advance(45ms);
        EXPECT_NEAR(alpha(), 0.156, 0.01) << "slow at the start";
        frames.advance(135ms);
        EXPECT_EQ(alpha(), 1);
        clock.advance(stays - 1ms);
        frames.advance(1s);
        EXPECT_EQ(alpha(), 1);
        clock.advance(1ms);
        frames.advance(340ms);
        EXPECT_TRUE(visible());
        EXPECT_LT(alpha(), 0.01);
        frames.advance(10ms);
        EXPECT_FALSE(visible());
    }
}

TEST_F(HUDTest, StaysWhileStickyUntilTheNextBannerEndsIt) {
    good();
    clock.advance(1s);
    good(true);
    clock.advance(24h);
    frames.advance(180ms);
    EXPECT_EQ(alpha(), 1);
    bad();
    clock.advance(3500ms);
    frames.advance(350ms);
    EXPECT_FALSE(visible());
}

TEST_F(HUDTest, ComesBackFromFadingOut) {
    good();
    frames.advance(180ms);
    clock.advance(1800ms);
    frames.advance(200ms);
    const double faded = alpha();
    EXPECT_LT(faded, 0.7);
    good(true);
    EXPECT_EQ(alpha(), faded);
    frames.advance(90ms);
    good(true);
    frames.advance(90ms);
    EXPECT_LT(alpha(), 1) << "each banner fades in for its own time";
    frames.advance(90ms);
    EXPECT_EQ(alpha(), 1);
}

TEST_F(HUDTest, AChangedPositionMovesTheNextBanner) {
    good();
    const QRect top = panel()->geometry();
    EXPECT_EQ(top.y(), QGuiApplication::primaryScreen()->availableGeometry().y() + 12);
    position = BannerPosition::bottom;
    clock.advance(100ms);
    EXPECT_EQ(panel()->geometry(), top);
    good();
    EXPECT_GT(panel()->geometry().y(), top.y() + 100);
}

TEST_F(HUDTest, IsASolidCapsuleThatComesAndGoesAtOnceWhereNothingBlends) {
    compositor.blending = false;
    good();
    EXPECT_EQ(alpha(), 1);
    const QRect window = panel()->rect();
    const QRegion mask = panel()->mask();
    EXPECT_EQ(mask.boundingRect(), window.adjusted(16, 16, -16, -16));
    EXPECT_FALSE(mask.contains(QPoint{17, 17}));
    clock.advance(1800ms);
    EXPECT_FALSE(visible());
    compositor.blending = true;
    good();
    EXPECT_TRUE(panel()->mask().isEmpty());
    EXPECT_EQ(alpha(), 0);
    setAnimationsEnabled(false);
    good();
    setAnimationsEnabled(std::nullopt);
    EXPECT_EQ(alpha(), 1) << "it moves though the user wants nothing to";
}

TEST_F(HUDTest, GrowsWithTheTextsOfTheDesktop) {
    good();
    const QSize before = panel()->size();
    const QFont font = QGuiApplication::font();
    QFont larger = font;
    larger.setPixelSize(26);
    QGuiApplication::setFont(larger);
    good();
    QGuiApplication::setFont(font);
    EXPECT_GT(panel()->width() - 32, (before.width() - 32) * 1.7);
    EXPECT_GT(panel()->height() - 32, (before.height() - 32) * 1.7);
}

TEST_F(HUDTest, IsALayerOfTheDesktopForAsLongAsThatWorks) {
    test::FakeOverlay layer;
    compositor.layer = &layer;
    position = BannerPosition::bottom;
    good();
    ASSERT_TRUE(layer.shown);
    EXPECT_EQ(panel(), nullptr) << "there is a window too";
    EXPECT_EQ(layer.shown->edge, Overlay::Edge::bottom);
    EXPECT_EQ(layer.shown->distance, 24);
    const QImage picture = layer.shown->paint(1.5);
    EXPECT_EQ(picture.size(), (QSizeF{layer.shown->size} * 1.5).toSize());
    EXPECT_EQ(qAlpha(picture.pixel(0, 0)), 0);
    EXPECT_GT(qAlpha(picture.pixel(picture.rect().center())), 230);
    frames.advance(180ms);
    EXPECT_EQ(layer.opacity, 1);
    clock.advance(1800ms);
    frames.advance(340ms);
    EXPECT_TRUE(layer.shown);
    frames.advance(10ms);
    EXPECT_FALSE(layer.shown);
    EXPECT_FALSE(hud.visible());

    good();
    frames.advance(180ms);
    compositor.layer = nullptr;
    bad();
    EXPECT_TRUE(visible()) << "nothing shows where the layer was lost";
    EXPECT_EQ(alpha(), 1);
}

} // namespace
} // namespace quillon
