#include "ui/SettingsWindow.h"

#include "support/Await.h"
#include "support/FakeDesktop.h"

#include <QApplication>
#include <QScreen>

#include <limits>

namespace quillon::test {

namespace {

class Content : public QWidget {
public:
    explicit Content(int height) : height_{height} {}
    [[nodiscard]] QSize sizeHint() const override { return {540, height_}; }

private:
    int height_;
};

struct SettingsWindowTest : testing::Test {
    FakeWorkspace workspace;
    int made = 0;
    int firstHeight = 300;
    SettingsWindow::Fit fit;
    SettingsWindow settings{workspace, [this](SettingsWindow::Fit given) {
                                ++made;
                                fit = std::move(given);
                                return std::make_unique<Content>(firstHeight);
                            }};

    [[nodiscard]] static QWidget& window() {
        for (QWidget* each : QApplication::topLevelWidgets()) {
            if (each->windowTitle() == QStringLiteral("Quillon")) return *each;
        }
        throw std::runtime_error{"there is no window"};
    }
};

} // namespace

TEST_F(SettingsWindowTest, ComesBackAsItWasWhereItWas) {
    settings.show();
    QWidget* const first = &window();
    const QRect screen = first->screen()->availableGeometry();
    EXPECT_LE((first->geometry().center() - screen.center()).manhattanLength(), 8)
        << "apart from its frame";
    first->move(37, 41);
    first->close();
    EXPECT_FALSE(first->isVisible());
    workspace.log.clear();
    settings.show();
    EXPECT_EQ(&window(), first);
    EXPECT_TRUE(first->isVisible());
    EXPECT_EQ(first->pos(), QPoint(37, 41));
    EXPECT_EQ(made, 1);
    EXPECT_THAT(workspace.log, ElementsAre("activate", "front"));
    first->showMinimized();
    settings.show();
    EXPECT_FALSE(first->isMinimized());
}

TEST_F(SettingsWindowTest, IsNeverLowerThanAtFirst) {
    firstHeight = 80;
    settings.show();
    EXPECT_EQ(window().size(), QSize(540, 200));
}

TEST_F(SettingsWindowTest, FollowsItsContentsHeightFromItsTopEdge) {
    settings.show();
    window().move(30, 40);
    const int frame = window().frameGeometry().height() - window().height();
    const int below = window().screen()->availableGeometry().bottom() + 1 - frame;
    const std::pair<double, int> cases[]{{std::numeric_limits<double>::quiet_NaN(), 300},
                                         {50, 300},
                                         {-400, 300},
                                         {300.5, 300},
                                         {299.5, 300},
                                         {301, 301},
                                         {50.6, 51},
                                         {420, 420},
                                         {9'000, below - 40}}; // the content scrolls
    for (const auto& [height, becomes] : cases) {
        const QSize before = window().size();
        fit(height);
        EXPECT_EQ(window().size(), before) << "not in the middle of the content's layout";
        QCoreApplication::processEvents();
        EXPECT_EQ(window().pos(), QPoint(30, 40));
        EXPECT_EQ(window().size(), QSize(540, becomes)) << height;
    }
    window().move(30, 140);
    EXPECT_TRUE(waitUntil([&] { return window().height() == below - 140; }));
}

} // namespace quillon::test
