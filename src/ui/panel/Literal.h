#pragma once

#include <QString>

namespace quillon {

/// A text of the user's for a label, which would take pairs of stars for the marks of bold parts.
[[nodiscard]] inline QString literal(QString text) {
    const QLatin1String stars{"**"};
    while (text.contains(stars))
        text.replace(stars, QStringLiteral("*\u2060*")); // a word joiner between
    return text;
}

} // namespace quillon
