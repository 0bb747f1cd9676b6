#include "desktop/HUDPanel.h"

#include "base/ShownText.h"
#include "desktop/HUDView.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPainter>

namespace quillon {
namespace {

// Window managers would keep the window on one workspace and below full-screen windows, so it
// bypasses them.
constexpr Qt::WindowFlags overlay = Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                                    Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus |
                                    Qt::BypassWindowManagerHint | Qt::NoDropShadowWindowHint;

/// Describes the window as a notification, which screen readers read out without any focus.
QAccessibleInterface* describe(const QString& className, QObject* object) {
    if (className != QLatin1String{HUDPanel::staticMetaObject.className()}) return nullptr;
    return new QAccessibleWidget{static_cast<QWidget*>(object), QAccessible::Notification};
}

} // namespace

HUDPanel::HUDPanel() : QWidget{nullptr, overlay} {
    QAccessible::installFactory(describe); // Qt installs the same factory only once
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_QuitOnClose, false);
    setFocusPolicy(Qt::NoFocus);
    create(); // first, because Qt loses a window type that is set before the window exists
    setAttribute(Qt::WA_X11NetWmWindowTypeNotification);
}

void HUDPanel::setContent(const HUDView& view, const QString& text, double devicePixelRatio,
                          bool blended) {
    picture_ = view.render(devicePixelRatio, blended);
    setMask(blended ? QRegion{} : view.outline());
    setAccessibleName(shortened(text));
    QAccessibleEvent announcement{this, QAccessible::Alert};
    QAccessible::updateAccessibility(&announcement);
    // Qt does not pass alerts on to the accessibility bus. It does pass on that a notification
    // shows, so a banner that already shows says so again for its new text.
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

// Fading the picture instead of the window works on every display, and a new window never flashes
// up at full strength.
void HUDPanel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    painter.setOpacity(alpha_);
    painter.drawPixmap(0, 0, picture_);
}

} // namespace quillon
