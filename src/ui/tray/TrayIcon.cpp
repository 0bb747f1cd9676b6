#include "ui/tray/TrayIcon.h"

#include "state/Store.h"
#include "ui/views/MenuBarIcon.h"

#include <QEvent>
#include <QGuiApplication>
#include <QIcon>
#include <QPalette>

#include <tuple>
#include <utility>

namespace quillon {

namespace {

/// The name under which the icon theme has the icon, for hosts that draw it in their own colour.
const QString themeIcon = QStringLiteral("dev.vostrel.quillon-symbolic");

} // namespace

TrayIcon::TrayIcon(Store& store, TrayActions actions, QDBusConnection bus)
    : store_{store},
      actions_{std::move(actions)},
      watch_{std::move(bus)},
      refresher_{this, [this] { refresh(); }} {
    buildMenu();
    connect(&watch_, &TrayWatch::changed, this, &TrayIcon::settle);
    refresher_.watch(store_, &Store::objectWillChange).refreshNow();
    settle();
}

TrayIcon::~TrayIcon() = default;

void TrayIcon::buildMenu() {
    send_ = menu_.addAction(tr("Send clipboard"));
    QAction* const panel = menu_.addAction(tr("Open panel"));
    menu_.addSeparator();
    QAction* const settings = menu_.addAction(tr("Settings…"));
    QAction* const quit = menu_.addAction(tr("Quit"));
    connect(send_, &QAction::triggered, this,
            [this] { std::ignore = store_.sendClipboard("button"); });
    connect(panel, &QAction::triggered, this, [this] { actions_.openPanel(place()); });
    connect(settings, &QAction::triggered, this, [this] { actions_.showSettings(); });
    connect(quit, &QAction::triggered, this, [this] { actions_.quit(); });
    menu_.installEventFilter(this);
}

void TrayIcon::settle() {
    // Qt decides once, when the first icon is made, whether icons go over the bus: so none is made
    // before there is a place for it, and each new place gets a new one.
    icon_.reset();
    if (!watch_.available()) return;
    icon_ = std::make_unique<QSystemTrayIcon>(image());
    icon_->setToolTip(QStringLiteral("Quillon"));
    icon_->setContextMenu(&menu_);
    connect(icon_.get(), &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason == QSystemTrayIcon::Trigger) actions_.togglePanel(place());
            });
    icon_->show();
}

QRect TrayIcon::place() const {
    return icon_ ? icon_->geometry() : QRect{};
}

void TrayIcon::refresh() {
    send_->setEnabled(store_.isReady() && !store_.busy());
}

QIcon TrayIcon::image() const {
    if (watch_.hosted() && QIcon::hasThemeIcon(themeIcon)) return QIcon::fromTheme(themeIcon);
    const QColor text = QGuiApplication::palette().color(QPalette::WindowText);
    return MenuBarIcon::image(watch_.foreground().value_or(text));
}

bool TrayIcon::eventFilter(QObject* watched, QEvent* event) {
    // The menu, as a widget, is told of the desktop's colours.
    if (event->type() == QEvent::PaletteChange && icon_) icon_->setIcon(image());
    return QObject::eventFilter(watched, event);
}

} // namespace quillon
