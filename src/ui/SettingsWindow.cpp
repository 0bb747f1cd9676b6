#include "ui/SettingsWindow.h"

#include "platform/Workspace.h"
#include "ui/theme/Theme.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <cmath>

namespace quillon {

namespace {

constexpr double contentWidth = 540;
constexpr double leastFirstHeight = 200;
/// Room for the title bar that the window manager adds.
constexpr int titleBarHeight = 40;
/// A content that is not laid out yet reports heights up to this.
constexpr double leastHeight = 50;
/// The least height that the window shrinks to for want of room, in pixels: its tabs, and enough of
/// the content to scroll in.
constexpr int leastRoom = 200;
/// The user has moved the window when it has not moved for this long.
constexpr std::chrono::milliseconds restingTime{150};
/// Smaller changes come from rounding.
constexpr double heightTolerance = 0.5;

/// Titled, closable, miniaturisable and, with its fixed size, not resizable.
constexpr Qt::WindowFlags flags = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                  Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                                  Qt::WindowMinimizeButtonHint;

/// Tells when it has come to rest somewhere else.
class Frame : public QWidget {
public:
    explicit Frame(const std::function<void()>& rested) : QWidget{nullptr, flags} {
        setWindowTitle(QStringLiteral("Quillon"));
        resting_.setSingleShot(true);
        resting_.setInterval(restingTime);
        resting_.callOnTimeout(this, rested);
    }

protected:
    void moveEvent(QMoveEvent* event) override {
        QWidget::moveEvent(event);
        resting_.start();
    }

private:
    QTimer resting_;
};

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
    fit(wanted_); // the screen may have changed
    workspace_.activate();
    workspace_.bringToFront(*window_->windowHandle());
}

void SettingsWindow::make() {
    window_ = std::make_unique<Frame>([this] { resize(); });
    QWidget* const content = makeContent_([this](double height) { fit(height); }).release();
    auto* const column = new QVBoxLayout{window_.get()};
    column->setContentsMargins({});
    column->setSizeConstraint(QLayout::SetNoConstraint);
    column->addWidget(content);
    wanted_ = std::max<double>(content->sizeHint().height(), leastFirstHeight);
    const int highest =
        QGuiApplication::primaryScreen()->availableGeometry().height() - titleBarHeight;
    window_->setFixedSize(Theme::wholeLength(contentWidth),
                          std::min(static_cast<int>(std::lround(wanted_)), highest));
    centre(*window_);
}

void SettingsWindow::fit(double height) {
    if (!window_ || !(height > leastHeight)) return; // also false for NaN
    wanted_ = height;
    QMetaObject::invokeMethod(
        window_.get(), [this] { resize(); }, Qt::QueuedConnection);
}

void SettingsWindow::resize() {
    const double height = std::min<double>(wanted_, std::max(room(), leastRoom));
    if (std::abs(window_->height() - height) <= heightTolerance) return;
    window_->setFixedSize(Theme::wholeLength(contentWidth), static_cast<int>(std::lround(height)));
}

int SettingsWindow::room() const {
    const QRect content = window_->geometry();
    const int frame = window_->frameGeometry().bottom() - content.bottom();
    return window_->screen()->availableGeometry().bottom() + 1 - frame - content.top();
}

} // namespace quillon
