#include "base/Graphemes.h"

#include "base/Utf8.h"

#include <unicode/brkiter.h>
#include <unicode/uchar.h>
#include <unicode/utext.h>

#include <cstdint>

namespace quillon {

namespace {

/// Printable ASCII and line feed are by far the most common characters.
bool isPlain(UChar32 codePoint) {
    return (codePoint >= 0x20 && codePoint < 0x7F) || codePoint == '\n';
}

/// Whether the code point neither joins what stands before it, save a Prepend, nor what follows it,
/// save an Extend, SpacingMark, ZWJ or Hangul jamo: two such neighbours are two characters.
bool standsAlone(UChar32 codePoint) {
    if (isPlain(codePoint)) return true;
    switch (u_getIntPropertyValue(codePoint, UCHAR_GRAPHEME_CLUSTER_BREAK)) {
    case U_GCB_OTHER:
    case U_GCB_LF:
    case U_GCB_CONTROL:
    case U_GCB_LV:
    case U_GCB_LVT:
        return true;
    default:
        return false;
    }
}

} // namespace

/// ICU's own segmentation of the whole text. It is made only for texts that need it.
class GraphemeCursor::Breaks {
public:
    explicit Breaks(std::string_view text) {
        UErrorCode status = U_ZERO_ERROR;
        text_ =
            utext_openUTF8(nullptr, text.data(), static_cast<std::int64_t>(text.size()), &status);
        iterator_.reset(
            icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
        if (U_SUCCESS(status)) iterator_->setText(text_, status);
    }
    ~Breaks() {
        iterator_.reset();
        utext_close(text_);
    }
    Breaks(const Breaks&) = delete;
    Breaks& operator=(const Breaks&) = delete;

    /// The first boundary after `offset`.
    std::size_t after(std::size_t offset) {
        return static_cast<std::size_t>(iterator_->following(static_cast<std::int32_t>(offset)));
    }

private:
    UText* text_ = nullptr;
    std::unique_ptr<icu::BreakIterator> iterator_;
};

GraphemeCursor::GraphemeCursor(std::string_view text) : text_{text} {}

GraphemeCursor::~GraphemeCursor() = default;

GraphemeCursor::Step GraphemeCursor::stepAt(std::size_t offset) const {
    std::size_t end = offset;
    const UChar32 codePoint = nextCodePoint(text_, end);
    return {.begin = offset, .end = end, .standsAlone = standsAlone(codePoint)};
}

Grapheme GraphemeCursor::next() {
    if (offset_ >= text_.size()) return {.end = offset_, .codePoints = 0};
    const std::size_t begin = offset_;
    if (begin + 1 < text_.size() && isPlain(text_[begin]) && isPlain(text_[begin + 1])) {
        return {.end = ++offset_, .codePoints = 1};
    }
    const bool known = ahead_.begin == begin && ahead_.end > begin;
    const Step first = known ? ahead_ : stepAt(begin);
    offset_ = first.end;
    if (offset_ == text_.size()) return {.end = offset_, .codePoints = 1};

    ahead_ = stepAt(offset_);
    if (first.standsAlone && ahead_.standsAlone) return {.end = offset_, .codePoints = 1};

    if (!breaks_) breaks_ = std::make_unique<Breaks>(text_);
    const std::size_t end = breaks_->after(begin);
    std::size_t codePoints = 1;
    for (; offset_ < end; ++codePoints) {
        nextCodePoint(text_, offset_);
    }
    offset_ = end;
    return {.end = end, .codePoints = codePoints};
}

} // namespace quillon
