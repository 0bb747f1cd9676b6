#pragma once

#include "platform/linux/x11/X11ManagerSelection.h"

#include <QObject>
#include <QVariant>

#include <functional>
#include <map>
#include <string>

namespace quillon {

/// Settings that are whole numbers or texts, by name.
using XSettingsValues = std::map<std::string, QVariant>;

/// The settings in the property of an XSETTINGS manager (freedesktop.org's XSETTINGS protocol);
/// only those before the fault if it is malformed.
[[nodiscard]] XSettingsValues parseXSettings(const QByteArray& property);

/// Follows the desktop's XSETTINGS manager on the X server that Qt is connected to, even if it
/// comes late. Does nothing on any other display.
class XSettings : public QObject {
public:
    /// Calls `changed` with all settings from the event loop, first soon and then at each change.
    explicit XSettings(std::function<void(const XSettingsValues&)> changed);

private:
    void read();

    std::function<void(const XSettingsValues&)> changed_;
    X11ManagerSelection manager_{"_XSETTINGS", "_XSETTINGS_SETTINGS"};
};

} // namespace quillon
