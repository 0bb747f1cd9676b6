#pragma once

#include <QByteArray>

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Rules on the formats in which programs offer what was copied: which of them hold files, text and
/// images, and how to read the bytes.
namespace quillon::ClipboardFormats {

enum class TextCoding { utf8, latin1 };

struct TextFormat {
    std::string name;
    TextCoding coding = TextCoding::utf8;

    bool operator==(const TextFormat&) const = default;
};

// Each picks from the offered formats, and gives names as the owner spells them.

/// The best first.
[[nodiscard]] std::vector<std::string> fileLists(const std::vector<std::string>& offered);
[[nodiscard]] std::optional<TextFormat> text(const std::vector<std::string>& offered);
[[nodiscard]] std::optional<std::string> png(const std::vector<std::string>& offered);
/// Images to be converted to PNG, the best first, which is TIFF.
[[nodiscard]] std::vector<std::string> otherBitmaps(const std::vector<std::string>& offered);

/// The local files that a list of URLs names, in its order; `machine` is the name of this machine.
/// A path may hold any byte but NUL, and loses the slash at its end. Leaves out other URLs, and
/// what is no URL.
[[nodiscard]] std::vector<std::filesystem::path> decodedPaths(const QByteArray& list,
                                                              std::string_view machine);

/// The text as valid UTF-8, without the NUL that some owners end it with. Invalid bytes become
/// U+FFFD.
[[nodiscard]] std::string decodedText(const QByteArray& bytes, TextCoding coding);

} // namespace quillon::ClipboardFormats
