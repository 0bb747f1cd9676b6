#include "ui/SettingsWindow.h"

#include "platform/Workspace.h"
#include "ui/theme/Theme.h"

#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

constexpr double contentWidth = 540;
constexpr double leastFirstHeight = 200;
/// Room for the title bar that the window manager adds.
constexpr int titleBarHeight = 40;
/// A content that is not laid out yet reports heights up to this.
constexpr double leastHeight = 50;
/// Smaller changes come from rounding.
constexpr double heightTolerance = 0.5;

/// Titled, closable, miniaturisable and, with its fixed size, not resizable.
constexpr Qt::WindowFlags flags = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                  Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                                  Qt::WindowMinimizeButtonHint;

/// The content has a fixed width. It scrolls when it is higher than the screen.
QSize contentSize(double height) {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    return {Theme::wholeLength(contentWidth),
            std::min(static_cast<int>(std::lround(height)), room.height() - titleBarHeight)};
}

void centre(QWidget& window) {
    QRect frame{{}, window.size()};
    frame.moveCenter(QGuiApplication::primaryScreen()->availableGeometry().center());
    window.move(frame.topLeft());
}

} // namespace

SettingsWindow::SettingsWindow(Workspace& workspace, MakeContent makeContent)
    : workspace_{workspace},
      makeContent_{std::move(makeContent)} {}

SettingsWindow::~SettingsWindow() = default;

void SettingsWindow::show() {
    if (!window_) make();
    // The window manager forgets the place of a hidden window and would choose a new one.
    if (!window_->isVisible()) window_->move(window_->pos());
    window_->setWindowState(window_->windowState() & ~Qt::WindowMinimized);
    window_->show();
    workspace_.activate();
    workspace_.bringToFront(*window_->windowHandle());
}

void SettingsWindow::make() {
    window_ = std::make_unique<QWidget>(nullptr, flags);
    window_->setWindowTitle(QStringLiteral("Quillon"));
    QWidget* const content = makeContent_([this](double height) { fit(height); }).release();
    auto* const column = new QVBoxLayout{window_.get()};
    column->setContentsMargins({});
    column->setSizeConstraint(QLayout::SetNoConstraint);
    column->addWidget(content);
    window_->setFixedSize(
        contentSize(std::max<double>(content->sizeHint().height(), leastFirstHeight)));
    centre(*window_);
}

void SettingsWindow::fit(double height) {
    if (!window_) return;
    const auto resize = [window = window_.get(), height] {
        if (!(height > leastHeight)) return; // also false for NaN
        if (std::abs(window->height() - height) <= heightTolerance) return;
        window->setFixedSize(contentSize(height));
    };
    QMetaObject::invokeMethod(window_.get(), resize, Qt::QueuedConnection);
}

} // namespace quillon
