#pragma once

#include "state/SendItem.h"

#include <filesystem>
#include <variant>
#include <vector>

/// What the clipboard holds, as the rest of the program sees it.
namespace quillon {

/// The paths of at least one file or folder, in the clipboard's order.
struct ClipFiles {
    std::vector<std::filesystem::path> paths;

    bool operator==(const ClipFiles&) const = default;
};

/// Nothing that can be sent.
struct ClipEmpty {
    /// The desktop lets nobody read what was copied.
    bool outOfReach = false;

    bool operator==(const ClipEmpty&) const = default;
};

using ClipContent = std::variant<ClipFiles, ClipImage, ClipText, ClipEmpty>;

} // namespace quillon
