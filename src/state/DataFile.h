#pragma once

#include <string_view>

#include <QtGlobal>

namespace quillon {

/// The files of the data folder.
inline constexpr std::string_view configFile = "config.json";
inline constexpr std::string_view historyFile = "history.json";
inline constexpr std::string_view undoFile = "undo.json";
inline constexpr std::string_view eventsFile = "events.json";

/// In bytes. Our files stay far below this size, so a larger one is not ours and is not read.
inline constexpr qint64 maximumDataFileSize = 4'000'000;

} // namespace quillon
