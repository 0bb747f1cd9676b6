#pragma once

#include "platform/linux/x11/X11ManagerSelection.h"

#include <QObject>
#include <QVariant>

#include <functional>
#include <map>
#include <string>

namespace quillon {

/// Whole numbers and texts by their names.
using XSettingsValues = std::map<std::string, QVariant>;

/// The settings in the property of an XSETTINGS manager (freedesktop.org's XSETTINGS protocol);
/// those before the fault where it is malformed.
[[nodiscard]] XSettingsValues parseXSettings(const QByteArray& property);

/// Follows the desktop's XSETTINGS manager on the X server that Qt is connected to, also one that
/// comes late. Does nothing on any other display.
class XSettings : public QObject {
public:
    /// Calls `changed` from the event loop, with all settings, now and each time that they change.
    explicit XSettings(std::function<void(const XSettingsValues&)> changed);

private:
    void read();

    std::function<void(const XSettingsValues&)> changed_;
    X11ManagerSelection manager_{"_XSETTINGS", "_XSETTINGS_SETTINGS"};
};

} // namespace quillon
