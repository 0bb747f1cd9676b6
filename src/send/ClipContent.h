#pragma once

#include <QByteArray>

#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

/// What the clipboard holds, as the rest of the program sees it.
namespace quillon {

/// The paths of at least one file or folder, in the clipboard's order.
struct ClipFiles {
    std::vector<std::filesystem::path> paths;

    bool operator==(const ClipFiles&) const = default;
};

/// A bitmap as PNG, and the text that was copied with it, unchanged.
struct ClipImage {
    QByteArray png;
    std::optional<std::string> text;

    bool operator==(const ClipImage&) const = default;
};

/// Text exactly as copied, with at least one character that is not white space or a line break.
struct ClipText {
    std::string text;

    bool operator==(const ClipText&) const = default;
};

/// Nothing that can be sent.
struct ClipEmpty {
    /// The desktop lets nobody read what was copied.
    bool outOfReach = false;

    bool operator==(const ClipEmpty&) const = default;
};

using ClipContent = std::variant<ClipFiles, ClipImage, ClipText, ClipEmpty>;

} // namespace quillon
