#pragma once

#include "state/TopicKind.h"

#include <filesystem>

namespace quillon {

/// What a file is taken for by its name's ending alone, in upper or lower case: a picture, a video,
/// else a plain file.
[[nodiscard]] TopicKind fileKind(const std::filesystem::path& path);

/// The name of the file or folder; "/" for the root folder.
[[nodiscard]] std::filesystem::path lastComponent(const std::filesystem::path& path);

} // namespace quillon
