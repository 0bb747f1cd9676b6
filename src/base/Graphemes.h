#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

namespace quillon {

/// One user-perceived character: where it ends, as a byte offset into the text, and how many code
/// points it has; 0 code points at the end of the text.
struct Grapheme {
    std::size_t end = 0;
    std::size_t codePoints = 0;
};

/// Walks UTF-8 text by extended grapheme clusters (Unicode Standard Annex 29). A table look-up
/// separates most neighbouring code points; ICU's break iterator decides the rest.
class GraphemeCursor {
public:
    /// The text must outlive the cursor.
    explicit GraphemeCursor(std::string_view text);
    ~GraphemeCursor();
    GraphemeCursor(const GraphemeCursor&) = delete;
    GraphemeCursor& operator=(const GraphemeCursor&) = delete;

    /// The character at the cursor; moves past it.
    Grapheme next();

    /// Byte offset of the cursor in the text.
    [[nodiscard]] std::size_t offset() const { return offset_; }
    void moveTo(std::size_t offset) { offset_ = offset; }

private:
    class Breaks;

    /// One code point: where it begins and ends, and whether it joins no neighbour.
    struct Step {
        std::size_t begin = 0;
        std::size_t end = 0;
        bool standsAlone = false;
    };
    [[nodiscard]] Step stepAt(std::size_t offset) const;

    std::string_view text_;
    std::size_t offset_ = 0;
    Step ahead_; ///< the step after the cursor, where next() has looked at it already; else empty
    std::unique_ptr<Breaks> breaks_;
};

} // namespace quillon
