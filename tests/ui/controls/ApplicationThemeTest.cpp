#include "ui/theme/ApplicationTheme.h"

#include "ui/text/IconLabel.h"
#include "ui/theme/Motion.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

using Scheme = Appearance::Scheme;

/// A desktop whose appearance the test changes.
class FakeAppearance : public AppearanceSource {
public:
    void follow(std::function<void(const Appearance&)> changed) override {
        changed_ = std::move(changed);
    }
    void change(const Appearance& appearance) const {
        if (changed_) changed_(appearance);
    }

private:
    std::function<void(const Appearance&)> changed_;
};

/// Gives the application back what it had.
class ApplicationThemeTest : public testing::Test {
protected:
    ~ApplicationThemeTest() override {
        setAnimationsEnabled(std::nullopt);
        QApplication::setFont(font_);
        QApplication::setPalette(palette_);
    }

    FakeAppearance desktop;

private:
    QFont font_ = QApplication::font();
    QPalette palette_ = QApplication::palette();
};

TEST_F(ApplicationThemeTest, ChangesAWindowWhileItShows) {
    ApplicationTheme theme;
    theme.follow(desktop);
    IconLabel label{QStringLiteral("Clipboard")};
    label.show();
    const auto brightness = [&] {
        QCoreApplication::processEvents();
        return label.grab().toImage().pixelColor(0, 0).lightness();
    };
    const QSize normal = label.sizeHint();
    EXPECT_GT(brightness(), 200);
    desktop.change({.scheme = Scheme::dark, .animations = false, .textScale = 1.5});
    EXPECT_LT(brightness(), 60);
    EXPECT_FALSE(animationsEnabled());
    EXPECT_GT(label.sizeHint().width(), normal.width() * 1.3);
    desktop.change({.scheme = Scheme::light, .animations = true, .textScale = 1.25});
    desktop.change({.scheme = Scheme::noPreference, .animations = true});
    EXPECT_GT(brightness(), 200);
    EXPECT_TRUE(animationsEnabled());
    EXPECT_EQ(label.sizeHint(), normal) << "scales do not add up";
}

TEST_F(ApplicationThemeTest, LeavesTheColoursThatTheDesktopGivesQt) {
    const QPalette given{QColor{10, 60, 10}, QColor{20, 80, 20}};
    QApplication::setPalette(given);
    ApplicationTheme theme;
    theme.follow(desktop);
    for (const Scheme scheme : {Scheme::dark, Scheme::light}) {
        desktop.change({.scheme = scheme});
        EXPECT_EQ(QApplication::palette().color(QPalette::Window), QColor(20, 80, 20));
    }
}

} // namespace
} // namespace quillon::test
