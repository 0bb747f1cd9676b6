#include "desktop/HUDPanel.h"

#include "desktop/HUDView.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPainter>

namespace quillon {
namespace {

// Window managers keep windows below full-screen ones and on one workspace; none manages this one.
constexpr Qt::WindowFlags overlay = Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                                    Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus |
                                    Qt::BypassWindowManagerHint | Qt::NoDropShadowWindowHint;

/// A notification, which screen readers read out although it never has the focus.
QAccessibleInterface* describe(const QString& className, QObject* object) {
    if (className != QLatin1String{HUDPanel::staticMetaObject.className()}) return nullptr;
    return new QAccessibleWidget{static_cast<QWidget*>(object), QAccessible::Notification};
}

} // namespace

HUDPanel::HUDPanel() : QWidget{nullptr, overlay} {
    QAccessible::installFactory(describe); // once, however often
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_QuitOnClose, false);
    setFocusPolicy(Qt::NoFocus);
    create(); // Qt drops a window type that is set on a window yet to be made
    setAttribute(Qt::WA_X11NetWmWindowTypeNotification);
}

void HUDPanel::setContent(const HUDView& view, const QString& text, double devicePixelRatio,
                          bool blended) {
    picture_ = view.render(devicePixelRatio, blended);
    setMask(blended ? QRegion{} : view.outline());
    setAccessibleName(text);
    QAccessibleEvent announcement{this, QAccessible::Alert};
    QAccessible::updateAccessibility(&announcement);
    // The accessibility bus is not told of alerts, but that a notification shows: here of one that
    // shows already.
    if (isVisible()) {
        QAccessibleEvent shown{this, QAccessible::ObjectShow};
        QAccessible::updateAccessibility(&shown);
    }
    update();
}

void HUDPanel::setAlpha(double alpha) {
    alpha_ = alpha;
    update();
}

// The picture is faded, not the window: that works on every display, and a window that has only
// just appeared never flashes up at full strength.
void HUDPanel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    painter.setOpacity(alpha_);
    painter.drawPixmap(0, 0, picture_);
}

} // namespace quillon
