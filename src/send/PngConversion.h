#pragma once

#include <QByteArray>
#include <QFuture>

#include <optional>

namespace quillon {

/// Converts a bitmap in any format that the image plug-ins read (TIFF, BMP, JPEG, WebP…) to an
/// upright PNG, on the thread pool. None when it cannot be decoded, or takes more than 512 MB
/// decoded. Image libraries write nothing to standard error.
[[nodiscard]] QFuture<std::optional<QByteArray>> convertToPng(QByteArray bitmap);

} // namespace quillon
