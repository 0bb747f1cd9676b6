#pragma once

#include "platform/linux/files/Descriptor.h"

#include <string>
#include <vector>

#include <fcntl.h>

namespace quillon {

/// A name within an open folder. Neither is owned.
struct Place {
    int folder = AT_FDCWD;
    const char* name = nullptr;
};

/// Opens the item at the place itself, never through a symbolic link, and without waiting for the
/// other end of a pipe. The number is negative when it fails.
[[nodiscard]] inline int openItself(Place place, int flags) {
    constexpr int always = O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    return uninterrupted([&] { return ::openat(place.folder, place.name, flags | always); });
}

/// The names in the open folder, without "." and "..", in no order.
struct Listing {
    std::vector<std::string> names;
    /// Whether these are all.
    bool complete = false;
};
[[nodiscard]] Listing listing(int folder);

} // namespace quillon
