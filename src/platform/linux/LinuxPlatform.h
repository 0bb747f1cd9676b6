#pragma once

#include "platform/Pasteboard.h"
#include "platform/Platform.h"
#include "platform/linux/CanberraSounds.h"
#include "platform/linux/CurlTransport.h"
#include "platform/linux/LibsecretStore.h"
#include "platform/linux/PosixFileSystem.h"
#include "platform/linux/QtClock.h"

#include <memory>

namespace quillon {

/// The services of a Linux desktop, as the environment describes it.
class LinuxPlatform {
public:
    /// QUILLON_BOT_API, when set, names another Bot API server, which may speak plain http.
    explicit LinuxPlatform(std::unique_ptr<Pasteboard> pasteboard);

    [[nodiscard]] Platform& platform() { return platform_; }

private:
    QtClock clock_;
    PosixFileSystem files_;
    CurlTransport http_;
    std::unique_ptr<Pasteboard> pasteboard_;
    LibsecretStore secrets_;
    CanberraSounds sounds_;
    Platform platform_;
};

} // namespace quillon
