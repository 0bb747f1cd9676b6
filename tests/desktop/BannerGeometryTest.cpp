#include "desktop/BannerGeometry.h"

#include <QFontMetricsF>

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(BannerFrame, IsCentredInWhatPanelsLeaveOfTheScreen) {
    const QRect visible{100, 30, 1000, 700}; // a panel above, a dock at the left
    const std::tuple<BannerPosition, QSize, QRect> cases[]{
        {BannerPosition::top, {300, 74}, {450, 42, 300, 74}},
        {BannerPosition::middle, {300, 74}, {450, 343, 300, 74}},
        {BannerPosition::bottom, {300, 74}, {450, 632, 300, 74}},
        {BannerPosition::top, {1200, 74}, {0, 42, 1200, 74}},
    };
    for (const auto& [position, window, frame] : cases)
        EXPECT_EQ(bannerFrame(visible, window, position), frame) << frame.y();
}

QStringList wrap(const QString& text) {
    const BannerText result = wrapBannerText(text, QFont{QStringLiteral("sans"), 10});
    EXPECT_LE(result.width, 380);
    return result.lines;
}

TEST(BannerText, WrapsIntoTwoLinesAndEndsTheSecondWithAnEllipsis) {
    EXPECT_EQ(wrap(QString{}), QStringList{QString{}});
    EXPECT_EQ(wrap(QStringLiteral("Sent")), QStringList{QStringLiteral("Sent")});
    EXPECT_EQ(wrap(QStringLiteral("one\r\ntwo")),
              (QStringList{QStringLiteral("one"), QStringLiteral("two")}));
    EXPECT_EQ(wrap(QStringLiteral("one\ntwo\nthree")),
              (QStringList{QStringLiteral("one"), QStringLiteral("two…")}));
    const QString words = QStringLiteral("word ").repeated(60);
    const QStringList lines = wrap(words);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_TRUE(lines[0].endsWith(QStringLiteral("word")));
    EXPECT_TRUE(lines[1].endsWith(QChar{0x2026}));
    const QFontMetricsF font{QFont{QStringLiteral("sans"), 10}};
    EXPECT_GT(font.horizontalAdvance(lines[1]), 340);
}

TEST(BannerText, BreaksAWordThatFitsNoLineBetweenItsCharacters) {
    const QString family =
        QStringLiteral("👨‍👩‍👧‍👦"); // one character to the eye, eleven code units
    const QStringList lines = wrap(family.repeated(100));
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0].size() % family.size(), 0);
    EXPECT_EQ((lines[1].size() - 1) % family.size(), 0);
}

} // namespace
} // namespace quillon
