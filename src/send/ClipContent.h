#pragma once

#include <QByteArray>

#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

/// What the clipboard holds, as the rest of the program sees it.
namespace quillon {

/// References to files or folders, in the clipboard's order; never without one.
struct ClipFiles {
    std::vector<std::filesystem::path> paths;

    bool operator==(const ClipFiles&) const = default;
};

/// A bitmap as PNG, and the text copied with it, exactly as it stood there.
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
    bool operator==(const ClipEmpty&) const = default;
};

using ClipContent = std::variant<ClipFiles, ClipImage, ClipText, ClipEmpty>;

} // namespace quillon
