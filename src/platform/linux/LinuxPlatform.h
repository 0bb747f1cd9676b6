#pragma once

#include "platform/HotKeys.h"
#include "platform/Pasteboard.h"
#include "platform/Platform.h"
#include "platform/linux/QtClock.h"
#include "platform/linux/QtUserDefaults.h"
#include "platform/linux/desktop/CanberraSounds.h"
#include "platform/linux/desktop/LinuxWorkspace.h"
#include "platform/linux/desktop/XdgLoginItem.h"
#include "platform/linux/files/PosixFileSystem.h"
#include "platform/linux/files/PosixFileTree.h"
#include "platform/linux/http/CurlTransport.h"
#include "platform/linux/keyring/LibsecretStore.h"

#include <memory>

namespace quillon {

/// The services of a Linux desktop, as the environment describes it.
class LinuxPlatform {
public:
    /// If QUILLON_BOT_API is set, it names another Bot API server, and QUILLON_SERVER another
    /// makers' server; both may then use plain http.
    explicit LinuxPlatform(std::unique_ptr<Pasteboard> pasteboard,
                           std::unique_ptr<HotKeys> hotKeys = std::make_unique<NoHotKeys>());

    [[nodiscard]] Platform& platform() { return platform_; }

private:
    Bundle bundle_;
    Folders folders_;
    QtClock clock_;
    PosixFileSystem files_;
    CurlTransport http_;
    std::unique_ptr<Pasteboard> pasteboard_;
    LibsecretStore secrets_;
    CanberraSounds sounds_;
    QtUserDefaults defaults_;
    std::unique_ptr<HotKeys> hotKeys_;
    XdgLoginItem loginItem_;
    PosixFileTree trees_;
    LinuxWorkspace workspace_;
    Platform platform_;
};

} // namespace quillon
