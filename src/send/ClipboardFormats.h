#pragma once

#include <QByteArray>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// Rules on the formats in which programs offer what was copied: which of them hold files, text and
/// images, and how to read the bytes.
namespace quillon::ClipboardFormats {

enum class Kind { files, text, image };

/// Those of the offered formats that hold this kind, the best first, as the owner spells them.
[[nodiscard]] std::vector<std::string> formatsOf(Kind kind,
                                                 const std::vector<std::string>& offered);
[[nodiscard]] bool isPng(std::string_view format);

/// The local files that a list of URLs names, in its order; `machine` is the name of this machine.
/// A path may hold any byte but NUL, and loses the slash at its end. Leaves out other URLs, and
/// what is no URL.
[[nodiscard]] std::vector<std::filesystem::path> decodedPaths(const QByteArray& list,
                                                              std::string_view machine);

/// The text as valid UTF-8, without the NUL that some owners end it with. Invalid bytes become
/// U+FFFD.
[[nodiscard]] std::string decodedText(const QByteArray& bytes, std::string_view format);

} // namespace quillon::ClipboardFormats
