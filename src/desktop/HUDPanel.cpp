#include "desktop/HUDPanel.h"

#include "base/ShownText.h"
#include "desktop/Banner.h"
#include "desktop/HUDView.h"
#include "platform/Compositor.h"
#include "platform/Workspace.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPainter>
#include <QScreen>

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

HUDPanel::HUDPanel(const Compositor& compositor, const Workspace& workspace)
    : QWidget{nullptr, overlay},
      compositor_{compositor},
      workspace_{workspace} {
    QAccessible::installFactory(describe); // Qt installs the same factory only once
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_QuitOnClose, false);
    setFocusPolicy(Qt::NoFocus);
    create(); // first, because Qt loses a window type that is set before the window exists
    setAttribute(Qt::WA_X11NetWmWindowTypeNotification);
}

void HUDPanel::setContent(const HUDView& view, const BannerMessage& message) {
    const QScreen* const screen = workspace_.screenInUse();
    blended_ = compositor_.active();
    picture_ = view.render(screen ? screen->devicePixelRatio() : 1, blended_);
    setMask(blended_ ? QRegion{} : view.outline());
    announce(shortened(QString::fromStdString(message.text)));
    update();
    if (!screen) return;
    setGeometry(bannerFrame(screen->availableGeometry(), view.size(), message.position));
    if (isVisible()) repaint();
}

void HUDPanel::announce(const QString& text) {
    setAccessibleName(text);
    QAccessibleEvent announcement{this, QAccessible::Alert};
    QAccessible::updateAccessibility(&announcement);
    // Qt does not pass alerts on to the accessibility bus. It does pass on that a notification
    // shows, so a banner that already shows says so again for its new text.
    if (!isVisible()) return;
    QAccessibleEvent shown{this, QAccessible::ObjectShow};
    QAccessible::updateAccessibility(&shown);
}

void HUDPanel::appear() {
    show();
    raise();
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
