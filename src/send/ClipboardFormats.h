#pragma once

#include <QByteArray>

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Rules on the formats in which programs of this desktop offer what was copied: which of them
/// stand for files, text and images, and how the bytes are to be read.
namespace quillon::ClipboardFormats {

enum class TextCoding { utf8, latin1 };

struct TextFormat {
    std::string name;
    TextCoding coding = TextCoding::utf8;

    bool operator==(const TextFormat&) const = default;
};

// Which of the offered formats stand for what is asked, as their owner spells them.

/// The best first.
[[nodiscard]] std::vector<std::string> fileLists(const std::vector<std::string>& offered);
[[nodiscard]] std::optional<TextFormat> text(const std::vector<std::string>& offered);
[[nodiscard]] std::optional<std::string> png(const std::vector<std::string>& offered);
/// Images to be converted to PNG, the best first, which is TIFF.
[[nodiscard]] std::vector<std::string> otherBitmaps(const std::vector<std::string>& offered);

/// The files of this machine, which bears the name `machine`, that a list names, in its order. A
/// path may hold any byte but NUL; the slash at a folder's end is dropped. Other URLs and what is
/// no URL are left out.
[[nodiscard]] std::vector<std::filesystem::path> decodedPaths(const QByteArray& list,
                                                              std::string_view machine);

/// Valid UTF-8, without the NUL that some owners end a text with; whatever is not valid has become
/// U+FFFD.
[[nodiscard]] std::string decodedText(const QByteArray& bytes, TextCoding coding);

} // namespace quillon::ClipboardFormats
