#pragma once

#include <QByteArray>
#include <QSize>

/// What the chunks of a PNG tell without decoding it. Not left to QImageReader, which loads every
/// plug-in there is before it looks at the first byte.
namespace quillon {

/// The size in pixels; empty when these bytes are something else.
[[nodiscard]] QSize pngSize(const QByteArray& png);

/// Whether a PNG ends before its last chunk does, as when the one who writes it was interrupted.
/// False for what does not begin as a PNG: Telegram takes other formats too.
[[nodiscard]] bool isCutPng(const QByteArray& png);

} // namespace quillon
