#include "Fuzz.h"

#include "base/Graphemes.h"
#include "base/Text.h"
#include "send/ClipboardFormats.h"
#include "send/Message.h"

// Any bytes a clipboard's owner may hand over: file lists give absolute paths without NUL, texts
// give messages within the Bot API's limits.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillon;
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    for (const auto& path : ClipboardFormats::decodedPaths(bytes, "fuzz")) {
        require(path.is_absolute() && path.native().find('\0') == std::string::npos);
    }
    const std::string text = ClipboardFormats::decodedText(bytes, "UTF8_STRING");
    require(validUtf8(text) == text);
    std::size_t total = 0;
    for (const std::string_view chunk : chunks(text, {.characters = 3, .codePoints = 5})) {
        require(!chunk.empty());
        GraphemeCursor cursor{chunk};
        std::size_t codePoints = 0;
        for (Grapheme next = cursor.next(); next.codePoints > 0; next = cursor.next()) {
            codePoints += next.codePoints;
        }
        require(codePoints <= 5);
        total += chunk.size();
    }
    require(total == text.size());
    (void)textMessages(text);
    (void)textTitle(text);
    return 0;
}
