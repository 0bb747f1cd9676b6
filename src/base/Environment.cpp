#include "base/Environment.h"

#include <filesystem>
#include <system_error>

namespace quillon {

bool hasSessionBus() {
    if (const auto address = environment("DBUS_SESSION_BUS_ADDRESS"))
        return !address->starts_with("autolaunch:");
    const auto folder = environment("XDG_RUNTIME_DIR");
    std::error_code ignored;
    return folder && std::filesystem::is_socket(std::filesystem::path{*folder} / "bus", ignored);
}

} // namespace quillon
