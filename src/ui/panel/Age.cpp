#include "ui/panel/Age.h"

#include <QCoreApplication>

#include <unicode/reldatefmt.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace quillon {

namespace {

using std::chrono::seconds;

struct Unit {
    seconds length;
    URelativeDateTimeUnit unit;
};

/// The units, largest first. Months and years have their average length.
constexpr std::array units{
    Unit{std::chrono::years{1}, UDAT_REL_UNIT_YEAR},
    Unit{std::chrono::months{1}, UDAT_REL_UNIT_MONTH},
    Unit{std::chrono::weeks{1}, UDAT_REL_UNIT_WEEK},
    Unit{std::chrono::days{1}, UDAT_REL_UNIT_DAY},
    Unit{std::chrono::hours{1}, UDAT_REL_UNIT_HOUR},
    Unit{std::chrono::minutes{1}, UDAT_REL_UNIT_MINUTE},
};

QString inWords(double count, URelativeDateTimeUnit unit, const std::string& locale) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::RelativeDateTimeFormatter formatter{icu::Locale::createFromName(locale.c_str()),
                                                   nullptr, UDAT_STYLE_SHORT,
                                                   UDISPCTX_CAPITALIZATION_NONE, status};
    icu::UnicodeString text;
    if (U_SUCCESS(status)) formatter.formatNumeric(-count, unit, text, status);
    if (U_FAILURE(status)) return {};
    return QString{reinterpret_cast<const QChar*>(text.getBuffer()), text.length()};
}

} // namespace

QString age(Date date, Date now, const std::string& locale) {
    const auto elapsed = now - date;
    const auto* const unit = std::ranges::find_if(
        units, [elapsed](const Unit& candidate) { return elapsed >= candidate.length; });
    if (unit == units.end()) return QCoreApplication::translate("quillon::PanelView", "just now");
    return inWords(std::floor(elapsed / unit->length), unit->unit, locale);
}

} // namespace quillon
