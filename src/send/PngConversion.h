#pragma once

#include <QByteArray>
#include <QFuture>

#include <optional>

namespace quillon {

/// A bitmap in any format that the image plug-ins read (TIFF, BMP, JPEG, WebP…), upright, as PNG;
/// none when it cannot be decoded or takes more than 512 MB decoded. Works on the thread pool.
[[nodiscard]] QFuture<std::optional<QByteArray>> convertToPng(QByteArray bitmap);

} // namespace quillon
