#pragma once

#include "state/Sent.h"

#include <QString>

#include <string>

namespace quillon {

/// How long ago that was, in words: "just now" for less than a minute (and for what seems to be
/// still to come), else in the largest whole unit and the language of the locale ("de_AT"): "5 min.
/// ago".
[[nodiscard]] QString age(Date date, Date now, const std::string& locale);

} // namespace quillon
