#include "platform/linux/shortcut/PortalHotKeys.h"

#include "base/Environment.h"
#include "base/Translate.h"
#include "platform/linux/shortcut/CompositorLine.h"
#include "platform/linux/shortcut/GnomeBinding.h"
#include "platform/linux/shortcut/PortalSession.h"

#include <QFutureWatcher>
#include <QGuiApplication>
#include <QTimer>
#include <QtConcurrentRun>

#include <optional>
#include <tuple>
#include <utility>

namespace quillon {

/// One hot key that was asked for, and what has become of it.
class PortalHotKeys::Asked final : public QObject, public Registration {
public:
    Asked(PortalHotKeys& owner, PhysicalKey key) : owner_{owner}, key_{key} {
        owner_.asked_.insert(this);
        for (QTimer* const timer : {&patience_, &comeback_})
            timer->setSingleShot(true);
        connect(&patience_, &QTimer::timeout, this,
                [this] { take({.answer = PortalAnswer::silent}); });
        connect(&comeback_, &QTimer::timeout, this, [this] { ask(); });
        ask();
        told_ = state();
    }
    Asked(const Asked&) = delete;
    Asked& operator=(const Asked&) = delete;
    ~Asked() override { owner_.asked_.erase(this); }

    [[nodiscard]] HotKeyState state() const override {
        const Options& options = owner_.options_;
        return shortcutState(options.session, portal_, binding_, key_, options.executable);
    }
    void takeOffer() override;

    /// The portal has gone, or come.
    void followPortal(bool there);
    /// The user may have been in the desktop's settings.
    void lookAgain();

private:
    /// Asks the portal, in a new session.
    void ask();
    void take(const PortalReport& report);
    /// Looks for GNOME's key binding where that is the way, and removes it where the portal is.
    void followBinding();
    void addBinding();
    /// Takes over what the thread pool finds.
    void awaitBinding(const QFuture<BindingReport>& found);
    /// Tells the observer if the state is another one.
    void announce();
    [[nodiscard]] std::string command() const { return sendCommand(owner_.options_.executable); }

    PortalHotKeys& owner_;
    PhysicalKey key_;
    std::optional<PortalSession> session_;
    PortalReport portal_;
    BindingReport binding_;
    std::optional<HotKeyState> told_;
    QTimer patience_;
    QTimer comeback_;
};

void PortalHotKeys::Asked::ask() {
    session_.reset();
    comeback_.stop();
    portal_ = {};
    if (!owner_.bus_.isConnected()) return take({.answer = PortalAnswer::missing});
    patience_.start(owner_.options_.patience);
    session_.emplace(
        owner_.bus_, QString::fromStdString(owner_.options_.applicationId), key_,
        PortalSession::Listener{.told = [this](const PortalReport& report) { take(report); },
                                .pressed =
                                    [this](const std::string& activation) {
                                        if (owner_.handler_) owner_.handler_(activation);
                                    }});
    announce();
}

void PortalHotKeys::Asked::take(const PortalReport& report) {
    patience_.stop();
    portal_ = report;
    followBinding();
    announce();
}

void PortalHotKeys::Asked::followPortal(bool there) {
    // What waits for an answer was what has started it.
    if (there && portal_.answer == PortalAnswer::awaited) return;
    if (there) return ask();
    session_.reset();
    // Where it gave no keys there is nothing to lose.
    if (shortcutWay(owner_.options_.session, portal_.answer) != ShortcutWay::portal) return;
    // One that ended before it had answered would do so again. It is left to others to start it.
    const bool answered =
        portal_.answer != PortalAnswer::awaited && portal_.answer != PortalAnswer::gone;
    if (answered) comeback_.start(owner_.options_.comeback);
    take({.answer = PortalAnswer::gone});
}

void PortalHotKeys::Asked::takeOffer() {
    switch (state().offer) {
    case HotKeyState::Offer::askAgain:
        return ask();
    case HotKeyState::Offer::configure:
        return session_->configure();
    case HotKeyState::Offer::addBinding:
        return addBinding();
    case HotKeyState::Offer::nothing:
    case HotKeyState::Offer::copyCommand:
        return;
    }
}

void PortalHotKeys::Asked::followBinding() {
    if (!owner_.options_.session.isDesktop("gnome")) return;
    const ShortcutWay way = shortcutWay(owner_.options_.session, portal_.answer);
    if (way == ShortcutWay::gnomeBinding) {
        awaitBinding(QtConcurrent::run(gnomeBinding::follow, key_, command()));
    } else if (portal_.answer == PortalAnswer::bound) {
        // Both would send.
        std::ignore = QtConcurrent::run(gnomeBinding::removeAll);
    }
}

void PortalHotKeys::Asked::lookAgain() {
    if (state().way == ShortcutWay::gnomeBinding) followBinding();
}

void PortalHotKeys::Asked::addBinding() {
    awaitBinding(QtConcurrent::run(gnomeBinding::add, key_, command(),
                                   translate("Shortcut", "Send the clipboard to the phone")));
}

void PortalHotKeys::Asked::awaitBinding(const QFuture<BindingReport>& found) {
    // This may end before the answer comes, which QFuture::then does not bear.
    auto* const watcher = new QFutureWatcher<BindingReport>{this};
    connect(watcher, &QFutureWatcher<BindingReport>::finished, this, [this, watcher] {
        watcher->deleteLater();
        binding_ = watcher->result();
        announce();
    });
    watcher->setFuture(found);
}

void PortalHotKeys::Asked::announce() {
    HotKeyState now = state();
    // Not while it is made, when who makes it asks for the state.
    if (!told_ || now == *told_) return;
    told_ = now;
    if (owner_.observer_) owner_.observer_(key_, now);
}

namespace {

/// A new connection of this name; one that is not connected where there is no such bus.
QDBusConnection connectionTo(const QString& address, const QString& name) {
    if (!address.isEmpty()) return QDBusConnection::connectToBus(address, name);
    if (!hasSessionBus()) return QDBusConnection{name};
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
}

} // namespace

PortalHotKeys::PortalHotKeys(Options options)
    : options_{std::move(options)},
      busName_{QStringLiteral("quillon ") + PortalCalls::newToken()},
      bus_{connectionTo(options_.bus, busName_)} {
    bus_.connect({}, QStringLiteral("/org/freedesktop/DBus"),
                 QStringLiteral("org.freedesktop.DBus"), QStringLiteral("NameOwnerChanged"),
                 {portal::name}, QStringLiteral("sss"), this,
                 SLOT(ownerChanged(QString, QString, QString)));
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            &PortalHotKeys::activityChanged);
}

PortalHotKeys::~PortalHotKeys() {
    QDBusConnection::disconnectFromBus(busName_);
}

void PortalHotKeys::installHandler(std::function<void(const std::string&)> handler) {
    handler_ = std::move(handler);
}

void PortalHotKeys::observe(std::function<void(PhysicalKey, const HotKeyState&)> observer) {
    observer_ = std::move(observer);
}

std::unique_ptr<HotKeys::Registration> PortalHotKeys::registerHotKey(PhysicalKey key) {
    return std::make_unique<Asked>(*this, key);
}

void PortalHotKeys::ownerChanged(const QString& /*name*/, const QString& /*before*/,
                                 const QString& now) {
    for (Asked* const each : asked_)
        each->followPortal(!now.isEmpty());
}

void PortalHotKeys::activityChanged(Qt::ApplicationState now) {
    if (now != Qt::ApplicationActive) return;
    for (Asked* const each : asked_)
        each->lookAgain();
}

} // namespace quillon
