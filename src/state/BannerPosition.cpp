#include "state/BannerPosition.h"

#include "base/Translate.h"

namespace quillon {

namespace {

struct Row {
    std::string_view rawValue;
    const char* label;
    std::string_view symbol;
};

constexpr std::array<Row, allBannerPositions.size()> rows{{
    {"top", QT_TRANSLATE_NOOP("BannerPosition", "Top"), "inset.filled.topthird.rectangle"},
    {"middle", QT_TRANSLATE_NOOP("BannerPosition", "Middle"), "inset.filled.center.rectangle"},
    {"bottom", QT_TRANSLATE_NOOP("BannerPosition", "Bottom"), "inset.filled.bottomthird.rectangle"},
}};

const Row& row(BannerPosition position) {
    return rows.at(static_cast<std::size_t>(position));
}

} // namespace

std::string_view rawValue(BannerPosition position) {
    return row(position).rawValue;
}

std::optional<BannerPosition> bannerPosition(std::string_view raw) {
    for (const BannerPosition position : allBannerPositions) {
        if (rawValue(position) == raw) return position;
    }
    return std::nullopt;
}

std::string label(BannerPosition position) {
    return translate("BannerPosition", row(position).label);
}

std::string_view symbol(BannerPosition position) {
    return row(position).symbol;
}

} // namespace quillon
