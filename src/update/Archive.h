#pragma once

#include "platform/UpdateFramework.h"

#include <QtGlobal>

#include <filesystem>
#include <optional>
#include <stop_token>
#include <string_view>

namespace quillon {

/// Limits for the content of an archive.
struct UnpackLimits {
    qint64 bytes = 500'000'000;
    int entries = 20'000;
};

/// Unpacks the bytes of a tar archive, as it is or compressed with gzip, xz or zstd, into an empty
/// folder of this user's. Modes and times come from the archive, the owner is the user. Each of
/// these is refused with its own error: absolute paths, "..", links that lead out of the folder,
/// devices, pipes and sockets, set-uid and set-gid bits, more than the limits or the free disk
/// space, and damage. After an error or a request to stop, the folder holds an unfinished part.
/// Takes long: not for the main thread.
[[nodiscard]] std::optional<UpdateError> unpack(std::string_view archive,
                                                const std::filesystem::path& folder,
                                                UnpackLimits limits = {},
                                                const std::stop_token& stop = {});

} // namespace quillon
