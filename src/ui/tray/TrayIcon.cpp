#include "ui/tray/TrayIcon.h"

#include "state/Store.h"
#include "ui/controls/MenuBarIcon.h"

#include <QEvent>
#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QPalette>
#include <QPixmap>
#include <QScreen>
#include <QStandardPaths>
#include <QTimer>

#include <chrono>
#include <cmath>
#include <tuple>
#include <utility>

namespace quillon {

namespace {

/// The icon's name in the icon theme, for hosts that paint icons in a colour of their own.
const QString themeIcon = QStringLiteral("dev.vostrel.quillon-symbolic");

/// Whether the icon is installed. Qt would read the theme's whole index for this.
bool hasThemeIcon() {
    const QString file = QStringLiteral("icons/hicolor/symbolic/apps/%1.svg").arg(themeIcon);
    return !QStandardPaths::locate(QStandardPaths::GenericDataLocation, file).isEmpty();
}

/// The time after which an X11 tray has painted the icon.
constexpr std::chrono::milliseconds drawn{500};

/// The colour behind the icon, taken from the icon's corner, where the icon itself is transparent.
QColor groundOf(const QRect& place) {
    QScreen* const screen = QGuiApplication::screenAt(place.topLeft());
    if (!screen) return {};
    const QPoint corner = place.topLeft() - screen->geometry().topLeft();
    const QImage pixel = screen->grabWindow(0, corner.x(), corner.y(), 1, 1).toImage();
    return pixel.isNull() ? QColor{} : pixel.pixelColor(0, 0);
}

/// The desktop's text colour, or its window colour if that stands out better from the ground.
QColor inkOn(const QColor& ground) {
    const QPalette palette = QGuiApplication::palette();
    const QColor text = palette.color(QPalette::WindowText);
    const QColor window = palette.color(QPalette::Window);
    const auto contrast = [&](const QColor& ink) {
        return std::abs(ink.lightnessF() - ground.lightnessF());
    };
    return ground.isValid() && contrast(window) > contrast(text) ? window : text;
}

/// Longer than the desktop's panel takes to start or restart.
constexpr std::chrono::seconds panelPatience{3};

} // namespace

TrayIcon::TrayIcon(Store& store, Clock& clock, TrayActions actions, QDBusConnection bus)
    : store_{store},
      clock_{clock},
      actions_{std::move(actions)},
      watch_{std::move(bus)},
      refresher_{this, [this] { refresh(); }} {
    buildMenu();
    connect(&watch_, &TrayWatch::changed, this, [this] {
        waited_ = false;
        settle();
    });
    connect(&watch_, &TrayWatch::recoloured, this, &TrayIcon::redraw);
    refresher_.watch(store_, &Store::objectWillChange).refreshNow();
    settle();
}

TrayIcon::~TrayIcon() = default;

void TrayIcon::whenSettled(std::chrono::milliseconds patience, std::function<void()> then) {
    if (watch_.known()) return then();
    auto* const limit = new QTimer{this};
    limit->setSingleShot(true);
    connect(&watch_, &TrayWatch::answered, limit, [limit] { limit->start(0); });
    connect(limit, &QTimer::timeout, this, [limit, then = std::move(then)] {
        delete limit;
        then();
    });
    limit->start(patience);
}

void TrayIcon::buildMenu() {
    send_ = menu_.addAction(tr("Send clipboard"));
    QAction* const panel = menu_.addAction(tr("Open panel"));
    menu_.addSeparator();
    QAction* const settings = menu_.addAction(tr("Settings…"));
    QAction* const quit = menu_.addAction(tr("Quit"));
    connect(send_, &QAction::triggered, this,
            [this] { std::ignore = store_.sendClipboard(Trigger::button); });
    connect(panel, &QAction::triggered, this, [this] { actions_.openPanel(place()); });
    connect(settings, &QAction::triggered, this, [this] { actions_.showSettings(); });
    connect(quit, &QAction::triggered, this, [this] { actions_.quit(); });
    menu_.installEventFilter(this);
}

bool TrayIcon::hasPlace() const {
    if (!watch_.known()) return false;
    // Qt gives all icons of a process to the kind of place that the first one had. If a status
    // notifier host is about to come, waiting for it is better than having an X11 tray for good.
    if (!overBus_) return watch_.hosted() || (watch_.managed() && (waited_ || !watch_.watched()));
    return *overBus_ ? watch_.hosted() : watch_.managed();
}

void TrayIcon::settle() {
    // An icon on the bus stays, whatever X11 trays do. Any other place that is new gets a new icon.
    if (icon_ && overBus_.value_or(false) && watch_.hosted()) return redraw();
    icon_.reset();
    patience_.reset();
    look_.reset();
    if (!hasPlace()) {
        if (waited_) return setMissing(true);
        patience_ = clock_.after(panelPatience, [this] {
            waited_ = true;
            settle();
        });
        return;
    }
    makeIcon();
    setMissing(false);
}

void TrayIcon::makeIcon() {
    if (!overBus_) overBus_ = watch_.hosted();
    icon_ = std::make_unique<QSystemTrayIcon>(image());
    icon_->setToolTip(QStringLiteral("Quillon"));
    icon_->setContextMenu(&menu_);
    connect(icon_.get(), &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason == QSystemTrayIcon::Trigger) actions_.togglePanel(place());
            });
    icon_->show();
    watch_.listen();
    if (*overBus_) return;
    look_ = clock_.after(drawn, [this] {
        ground_ = groundOf(place());
        redraw();
    });
}

void TrayIcon::redraw() {
    if (icon_) icon_->setIcon(image());
}

void TrayIcon::setMissing(bool missing) {
    if (std::exchange(missing_, missing) != missing) Q_EMIT missingChanged();
}

QRect TrayIcon::place() const {
    return icon_ ? icon_->geometry() : QRect{};
}

void TrayIcon::refresh() {
    send_->setEnabled(store_.mayBeReady() && !store_.busy());
}

QIcon TrayIcon::image() const {
    // The best colour is that of the icons around it, if the tray tells.
    if (const auto told = watch_.foreground()) return MenuBarIcon::image(*told);
    const bool named = watch_.hosted() && hasThemeIcon();
    return MenuBarIcon::image(inkOn(ground_), named ? themeIcon : QString{});
}

bool TrayIcon::eventFilter(QObject* watched, QEvent* event) {
    // The menu is a widget, and therefore receives changes of the desktop's colours.
    if (event->type() == QEvent::PaletteChange) redraw();
    return QObject::eventFilter(watched, event);
}

} // namespace quillon
