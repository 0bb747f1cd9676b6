#include "state/BannerPosition.h"

#include "base/Translate.h"

namespace quillon {

namespace {

struct Row {
    const char* label;
    std::string_view symbol;
};

constexpr std::array<Row, allBannerPositions.size()> rows{{
    {QT_TRANSLATE_NOOP("BannerPosition", "Top"), "inset.filled.topthird.rectangle"},
    {QT_TRANSLATE_NOOP("BannerPosition", "Middle"), "inset.filled.center.rectangle"},
    {QT_TRANSLATE_NOOP("BannerPosition", "Bottom"), "inset.filled.bottomthird.rectangle"},
}};

const Row& row(BannerPosition position) {
    return rows.at(static_cast<std::size_t>(position));
}

} // namespace

std::string label(BannerPosition position) {
    return translate("BannerPosition", row(position).label);
}

std::string_view symbol(BannerPosition position) {
    return row(position).symbol;
}

} // namespace quillon
