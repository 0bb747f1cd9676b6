#pragma once

#include "support/SessionBus.h"

#include <QDBusVariant>

namespace quillon::test {

/// A desktop's panel that shows icons given over the bus: a watcher, with a host or without.
class FakeHost : public BusService {
public:
    explicit FakeHost(bool hosted)
        : BusService{watcher,
                     {{"Get", property(hosted)}, {registration, QVariantList{}}},
                     {},
                     interfaces} {}

    /// The host that was missing comes to the watcher.
    void registerHost() {
        setAnswer("Get", property(true));
        sendSignal("/StatusNotifierWatcher", watcher, "StatusNotifierHostRegistered");
    }
    /// How many icons were registered.
    [[nodiscard]] qsizetype items() const { return calls(registration).size(); }
    /// A click on the icon that was registered last, with the permission to come to the front.
    void click(const QString& token = {}) const {
        (void)call(item(), "/StatusNotifierItem", "org.kde.StatusNotifierItem",
                   "ProvideXdgActivationToken", {token});
        (void)call(item(), "/StatusNotifierItem", "org.kde.StatusNotifierItem", "Activate",
                   {10, 10});
    }
    /// The file or the name in the icon theme that the host should paint.
    [[nodiscard]] QString iconName() const {
        const auto answer =
            call(item(), "/StatusNotifierItem", "org.freedesktop.DBus.Properties", "Get",
                 {QStringLiteral("org.kde.StatusNotifierItem"), QStringLiteral("IconName")});
        return answer.arguments().value(0).value<QDBusVariant>().variant().toString();
    }
    /// Whether that icon comes with a menu.
    [[nodiscard]] bool getsMenu() const {
        const auto layout =
            call(item(), "/MenuBar", "com.canonical.dbusmenu", "GetLayout", {0, -1, QStringList{}});
        return layout.type() == QDBusMessage::ReplyMessage;
    }

private:
    static constexpr const char* watcher = "org.kde.StatusNotifierWatcher";
    static constexpr const char* registration = "RegisterStatusNotifierItem";
    static constexpr const char* interfaces =
        R"(<interface name="org.kde.StatusNotifierWatcher">
             <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
           </interface>)";

    /// The bus name of who registered the icon.
    [[nodiscard]] QString item() const { return calls(registration).constLast().service(); }
    static QVariantList property(bool value) { return {QVariant::fromValue(QDBusVariant{value})}; }
};

} // namespace quillon::test
