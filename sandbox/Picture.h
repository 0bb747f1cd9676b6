// The size of a picture, read from the header of its file.
#pragma once

#include <optional>
#include <string_view>

namespace quillon::sandbox {

struct PictureSize {
    int width = 0;
    int height = 0;
};

/// The size in pixels; none if the bytes are no PNG, JPEG, WebP or GIF or their header is broken.
std::optional<PictureSize> pictureSize(std::string_view bytes);

} // namespace quillon::sandbox
