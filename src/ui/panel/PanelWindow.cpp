#include "ui/panel/PanelWindow.h"

#include "platform/Compositor.h"
#include "platform/Workspace.h"
#include "ui/controls/ScrollView.h"
#include "ui/panel/PanelPlacement.h"
#include "ui/panel/PanelView.h"
#include "ui/theme/Theme.h"

#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWindow>

#include <chrono>

namespace quillon {

namespace {

/// A click on the icon first takes the focus, which closes the panel, and is reported only then. A
/// click that is reported within this time is that same click, and must not open the panel again.
constexpr std::chrono::milliseconds sameClick{300};
/// How often a button that is held down is looked at.
constexpr std::chrono::milliseconds pressedInterval{50};
constexpr double cornerRadius = 10;

} // namespace

PanelWindow::PanelWindow(Compositor& compositor, Workspace& workspace, MakePanel makePanel)
    : QWidget{nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint},
      compositor_{compositor},
      workspace_{workspace},
      makePanel_{std::move(makePanel)} {
    setWindowTitle(QStringLiteral("Quillon"));
    pressed_.setInterval(pressedInterval);
    connect(&pressed_, &QTimer::timeout, this, &PanelWindow::closeUnlessPressed);
}

PanelWindow::~PanelWindow() = default;

void PanelWindow::makePanel() {
    // This is decided once, because a window cannot change its colour depth.
    setAttribute(Qt::WA_TranslucentBackground, compositor_.active());
    panel_ = makePanel_().release();
    scroll_ = new ScrollView{panel_};
    panel_->installEventFilter(this);
    auto* const column = new QVBoxLayout{this};
    column->setContentsMargins(1, 1, 1, 1);
    column->addWidget(scroll_);
}

void PanelWindow::toggle(const QRect& icon) {
    if (isVisible()) return hide();
    if (sinceLostFocus_.isValid() && sinceLostFocus_.elapsed() < sameClick.count())
        return sinceLostFocus_.invalidate();
    open(icon);
}

void PanelWindow::open(const QRect& icon) {
    if (!panel_) makePanel();
    icon_ = icon;
    pointer_ = QCursor::pos();
    place();
    if (!isVisible()) {
        create();
        workspace_.keepOffTaskBar(*windowHandle());
        show();
    }
    workspace_.bringToFront(*windowHandle());
    panel_->focusMainAction();
}

void PanelWindow::place() {
    const QPoint there = icon_.isEmpty() ? pointer_ : icon_.center();
    const QScreen* screen = QGuiApplication::screenAt(there);
    if (!screen) screen = QGuiApplication::primaryScreen();
    const QRect room = screen->availableGeometry();
    QSize size = panel_->sizeHint().grownBy({1, 1, 1, 1});
    const int most = room.height() - 2 * panelGap;
    if (size.height() > most)
        size = {size.width() + scroll_->verticalScrollBar()->sizeHint().width(), most};
    // Tiling desktops leave a window of one size alone.
    setFixedSize(size);
    setGeometry(icon_.isEmpty() ? panelInCorner(size, pointer_, room)
                                : panelBesideIcon(size, icon_, screen->geometry(), room));
}

bool PanelWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == panel_ && event->type() == QEvent::LayoutRequest && isVisible()) place();
    return QWidget::eventFilter(watched, event);
}

bool PanelWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowDeactivate && isVisible()) closeUnlessPressed();
    if (event->type() == QEvent::WindowActivate) pressed_.stop();
    return QWidget::event(event);
}

void PanelWindow::closeUnlessPressed() {
    if (workspace_.pointerPressed()) return pressed_.start();
    pressed_.stop();
    sinceLostFocus_.start();
    hide();
}

void PanelWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) return hide();
    QWidget::keyPressEvent(event);
}

void PanelWindow::paintEvent(QPaintEvent* /*event*/) {
    const Theme theme{*this};
    const bool round = testAttribute(Qt::WA_TranslucentBackground);
    QPainter painter{this};
    paintBox(painter, rect(), round ? cornerRadius : 0, palette().window(), theme.separator());
}

} // namespace quillon
