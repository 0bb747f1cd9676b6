#include "ui/SettingsWindow.h"

#include "platform/Workspace.h"
#include "ui/views/Theme.h"

#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

constexpr double contentWidth = 540;
constexpr int leastFirstHeight = 200;
/// Heights up to this are those of a content that is not laid out yet.
constexpr double leastHeight = 50;
/// Changes up to this are rounding.
constexpr double heightTolerance = 0.5;

/// Titled, closable, miniaturisable and, with its fixed size, not resizable.
constexpr Qt::WindowFlags flags = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                  Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                                  Qt::WindowMinimizeButtonHint;

int width() {
    return int(std::lround(Theme::length(contentWidth)));
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
    // A hidden window keeps its place in its widget alone: without being told, the window manager
    // would choose a new one.
    if (!window_->isVisible()) window_->move(window_->pos());
    window_->setWindowState(window_->windowState() & ~Qt::WindowMinimized);
    window_->show();
    workspace_.activate();
    window_->raise();
    window_->activateWindow();
}

void SettingsWindow::make() {
    window_ = std::make_unique<QWidget>(nullptr, flags);
    window_->setWindowTitle(QStringLiteral("Quillon"));
    QWidget* const content = makeContent_([this](double height) { fit(height); }).release();
    auto* const column = new QVBoxLayout{window_.get()};
    column->setContentsMargins({});
    column->addWidget(content);
    column->setSizeConstraint(QLayout::SetNoConstraint);
    const int height = column->hasHeightForWidth() ? column->totalHeightForWidth(width())
                                                   : column->totalSizeHint().height();
    window_->setFixedSize(width(), std::max(height, leastFirstHeight));
    centre(*window_);
}

void SettingsWindow::fit(double height) {
    if (!window_) return;
    const auto resize = [window = window_.get(), height] {
        if (!(height > leastHeight)) return; // nor what is not a number
        if (std::abs(window->height() - height) <= heightTolerance) return;
        window->setFixedSize(width(), int(std::lround(height)));
    };
    QMetaObject::invokeMethod(window_.get(), resize, Qt::QueuedConnection);
}

} // namespace quillon
