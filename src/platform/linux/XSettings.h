#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QVariant>

#include <cstdint>
#include <functional>
#include <map>
#include <string>

namespace quillon {

/// Whole numbers and texts by their names.
using XSettingsValues = std::map<std::string, QVariant>;

/// The settings in the property of an XSETTINGS manager (freedesktop.org's XSETTINGS protocol);
/// those before the fault where it is malformed.
[[nodiscard]] XSettingsValues parseXSettings(const QByteArray& property);

/// Follows the desktop's XSETTINGS manager on the X server that Qt has connected to, also one that
/// comes late. Does nothing on any other display.
class XSettings : public QObject, private QAbstractNativeEventFilter {
public:
    /// Calls `changed` from the event loop, with all settings, now and each time that they change.
    explicit XSettings(std::function<void(const XSettingsValues&)> changed);
    ~XSettings() override;

private:
    /// From the event loop: Qt is in the middle of handling an event.
    void later(void (XSettings::*action)());
    void lookForManager();
    void read();
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

    std::function<void(const XSettingsValues&)> changed_;
    std::uint32_t selection_ = 0; // atoms: what a manager owns,
    std::uint32_t property_ = 0;  // the property of its window,
    std::uint32_t coming_ = 0;    // and the message that tells of a new manager
    std::uint32_t manager_ = 0;   // its window
};

} // namespace quillon
