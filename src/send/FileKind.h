#pragma once

#include <filesystem>
#include <string_view>

namespace quillon {

/// What a file is taken for by its name alone.
struct FileKind {
    /// Key of the topic that it goes to.
    std::string_view topic;
    /// How usage events and history symbols name it.
    std::string_view kind;
    std::string_view symbol;
};

/// By the extension in any case: videos (mp4, mov, m4v, webm), images (png, jpg, jpeg, webp, gif,
/// heic), else a plain file.
[[nodiscard]] FileKind fileKind(const std::filesystem::path& path);

/// The name of the file or folder; "/" for the root folder.
[[nodiscard]] std::filesystem::path lastComponent(const std::filesystem::path& path);

} // namespace quillon
