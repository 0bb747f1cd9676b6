#pragma once

#include <QString>

namespace quillon {

/// The longest text that a line or a paragraph of a window shows, in UTF-16 units: more than a
/// screen has room for in one line, and laid out within a millisecond.
inline constexpr qsizetype longestShown = 1'000;

/// As much of a text from outside as is laid out, painted and told to assistive technology, where
/// the time for each grows with the text. A text of more than `longest` UTF-16 units loses its
/// middle, in whose place an ellipsis stands: the ends of file names, and of errors, tell much. No
/// character (grapheme cluster) is cut in two, unless it is longer than all that is kept.
[[nodiscard]] QString shortened(const QString& text, qsizetype longest = longestShown);

} // namespace quillon
