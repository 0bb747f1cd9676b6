#include "platform/linux/shortcut/FoundSession.h"

#include "base/Environment.h"

#include <QString>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

/// Variables that compositors set for what they start, and whom they tell of.
constexpr std::pair<const char*, const char*> markers[]{{"SWAYSOCK", "sway"},
                                                        {"HYPRLAND_INSTANCE_SIGNATURE", "hyprland"},
                                                        {"LABWC_PID", "labwc"},
                                                        {"NIRI_SOCKET", "niri"}};

} // namespace

bool FoundSession::isDesktop(std::string_view name) const {
    return std::ranges::find(desktops, name) != desktops.end();
}

bool isWaylandSession(std::string_view type, std::string_view display) {
    // A compositor that is started from a text console leaves the type at "tty".
    return type == "wayland" || (type != "x11" && !display.empty());
}

FoundSession foundSession() {
    FoundSession session{.wayland = isWaylandSession(environment("XDG_SESSION_TYPE").value_or(""),
                                                     environment("WAYLAND_DISPLAY").value_or(""))};
    for (const char* const variable : {"XDG_CURRENT_DESKTOP", "XDG_SESSION_DESKTOP"}) {
        const QString names = QString::fromStdString(environment(variable).value_or("")).toLower();
        for (const QString& name : names.split(QLatin1Char{':'}, Qt::SkipEmptyParts))
            session.desktops.push_back(name.toStdString());
    }
    for (const auto& [variable, name] : markers) {
        if (environment(variable)) session.desktops.emplace_back(name);
    }
    return session;
}

} // namespace quillon
