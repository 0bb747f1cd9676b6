#include "support/Testing.h"
#include "ui/panel/Age.h"
#include "ui/panel/PanelPlacement.h"

namespace quillon::test {

TEST(Age, IsTheLargestWholeUnitInTheUsersLanguage) {
    const Date now{std::chrono::seconds{1'700'000'000}};
    const std::tuple<std::chrono::duration<double>, std::string, std::string> cases[] = {
        {-3600s, "en_US", "just now"}, // the clock was set back
        {59.9s, "en_US", "just now"},      {60s, "en_US", "1 min. ago"},
        {119s, "en_US", "1 min. ago"},     {3599s, "en_US", "59 min. ago"},
        {3600s, "en_US", "1 hr. ago"},     {24h - 1s, "en_US", "23 hr. ago"},
        {24h, "en_US", "1 day ago"},       {24h * 7 - 1s, "en_US", "6 days ago"},
        {24h * 7, "en_US", "1 wk. ago"},   {24h * 40, "en_US", "1 mo. ago"},
        {24h * 800, "en_US", "2 yr. ago"}, {300s, "de_AT", "vor 5 Min."},
        {300s, "ja_JP", "5 分前"},
    };
    for (const auto& [elapsed, locale, text] : cases)
        EXPECT_EQ(age(now - elapsed, now, locale).toStdString(), text);
}

TEST(PanelPlacement, HangsFromTheIconAndStaysOnItsScreen) {
    const QSize size{300, 400};
    const QRect screen{0, 0, 1000, 800};
    const QRect second{1000, 0, 1000, 800};
    const struct {
        QRect icon;
        QRect screen;
        QRect room;
        QPoint topLeft;
    } cases[] = {
        // A panel at the top, with the icon in the middle and at the end of it.
        {{500, 0, 24, 24}, screen, {0, 24, 1000, 776}, {362, 30}},
        {{970, 0, 24, 24}, screen, {0, 24, 1000, 776}, {694, 30}},
        {{4, 776, 24, 24}, screen, {0, 0, 1000, 776}, {6, 370}},  // at the bottom
        {{0, 700, 40, 24}, screen, {40, 0, 960, 800}, {46, 394}}, // upright, left
        {{960, 10, 40, 24}, screen, {0, 0, 960, 800}, {654, 6}},  // upright, right
        {{1970, 0, 24, 24}, second, {1000, 24, 1000, 776}, {1694, 30}},
        // One that hides itself takes no room.
        {{500, 776, 24, 24}, screen, screen, {362, 370}},
        // Higher than the screen: its head stays in sight.
        {{500, 0, 24, 24}, screen, {0, 24, 1000, 300}, {362, 30}},
    };
    for (const auto& each : cases) {
        const QRect frame = panelBesideIcon(size, each.icon, each.screen, each.room);
        EXPECT_EQ(frame.size(), size);
        EXPECT_EQ(frame.topLeft(), each.topLeft)
            << frame.x() << "," << frame.y() << " for the icon at " << each.icon.x();
    }
}

TEST(PanelPlacement, TakesThePointersCornerWhereTheIconIsUnknown) {
    const QRect room{0, 24, 1000, 776};
    const std::pair<QPoint, QPoint> cases[] = {
        {{990, 5}, {694, 30}}, {{10, 5}, {6, 30}}, {{990, 790}, {694, 394}}, {{10, 790}, {6, 394}}};
    for (const auto& [pointer, topLeft] : cases)
        EXPECT_EQ(panelInCorner({300, 400}, pointer, room).topLeft(), topLeft);
}

} // namespace quillon::test
