#pragma once

#include "state/TopicKind.h"

#include <filesystem>

namespace quillon {

/// The kind of a file by the ending of its name alone, in upper or lower case: images, videos or
/// files.
[[nodiscard]] TopicKind fileKind(const std::filesystem::path& path);

/// The name of the file or folder; "/" for the root folder.
[[nodiscard]] std::filesystem::path lastComponent(const std::filesystem::path& path);

} // namespace quillon
