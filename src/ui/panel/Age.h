#pragma once

#include "state/Sent.h"

#include <QString>

#include <string>

namespace quillon {

/// How long ago `date` was, in words: "just now" if less than a minute ago or in the future, else
/// in the largest whole unit and in the language of the locale ("de_AT"), such as "5 min. ago".
[[nodiscard]] QString age(Date date, Date now, const std::string& locale);

} // namespace quillon
