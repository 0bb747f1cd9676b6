#include "platform/linux/wayland/WaylandConnection.h"

#include <QString>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <string>

namespace quillon {
namespace {

/// The compositor's socket, by the rule of libwayland; empty when there is none.
std::filesystem::path socketOf(const char* display) {
    std::filesystem::path name =
        display != nullptr
            ? std::string{display}
            : qEnvironmentVariable("WAYLAND_DISPLAY", QStringLiteral("wayland-0")).toStdString();
    if (name.empty() || name.is_absolute()) return name;
    const std::filesystem::path folder{qgetenv("XDG_RUNTIME_DIR").toStdString()};
    return folder.empty() ? folder : folder / name;
}

/// Connects without waiting for a compositor that accepts nothing; -1 when that fails.
int connectTo(const std::filesystem::path& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.empty() || path.native().size() >= sizeof address.sun_path) return -1;
    std::memcpy(address.sun_path, path.c_str(), path.native().size());
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
        return socket;
    ::close(socket);
    return -1;
}

} // namespace

std::unique_ptr<WaylandConnection> WaylandConnection::open(const char* display) {
    const int socket = connectTo(socketOf(display));
    if (socket < 0) return nullptr;
    if (!libwayland.load()) {
        ::close(socket);
        return nullptr;
    }
    wl_display* const connected = wl_display_connect_to_fd(socket); // which closes it
    if (connected == nullptr) return nullptr;
    return std::unique_ptr<WaylandConnection>{new WaylandConnection{connected}};
}

void WaylandConnection::dispatch() const {
    while (wl_display_prepare_read(display_) != 0) {
        if (wl_display_dispatch_pending(display_) < 0) return;
    }
    wl_display_read_events(display_); // without anything to read it returns at once
    wl_display_dispatch_pending(display_);
}

void WaylandConnection::sleep(const Bell& bell, int other,
                              std::optional<Bell::Time> deadline) const {
    flush();
    // A dead compositor's socket is always readable, so it is replaced by a negative number.
    bell.sleep({alive() ? descriptor() : -1, other}, deadline);
}

} // namespace quillon
