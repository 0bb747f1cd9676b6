#pragma once

#include <clocale>

namespace quillon {

/// While this object lives, C's character functions take this thread's texts for UTF-8, whatever
/// the locale of the process. Names in archives are UTF-8 even if the user works in the locale "C".
class Utf8Locale {
public:
    Utf8Locale()
        : locale_{::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)},
          before_{locale_ ? ::uselocale(locale_) : nullptr} {}
    Utf8Locale(const Utf8Locale&) = delete;
    Utf8Locale& operator=(const Utf8Locale&) = delete;
    ~Utf8Locale() {
        if (!locale_) return;
        ::uselocale(before_);
        ::freelocale(locale_);
    }

private:
    locale_t locale_;
    locale_t before_;
};

} // namespace quillon
