#include "artwork/Symbols.h"

#include <QImage>

#include <gtest/gtest.h>

#include <set>

namespace quillon {
namespace {

/// The share of the image that is painted, from 0 to 1; any colour but `color` fails the test.
double coverage(const QImage& image, QRgb color) {
    int painted = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() < 128) continue;
            ++painted;
            EXPECT_NEAR(pixel.red(), qRed(color), 2);
            EXPECT_NEAR(pixel.green(), qGreen(color), 2);
        }
    }
    return painted / double(image.width() * image.height());
}

TEST(Symbols, EachDrawsAnIconOfItsOwnInTheColourAskedFor) {
    std::set<std::string_view> names;
    std::set<std::string_view> icons;
    for (const SymbolEntry& entry : symbols()) {
        SCOPED_TRACE(std::string{entry.name});
        EXPECT_TRUE(names.insert(entry.name).second) << "named twice";
        EXPECT_TRUE(icons.insert(entry.icon).second) << "looks like another symbol";
        const QImage image = symbolPixmap(entry.name, 16, QColor{255, 122, 89}, 2).toImage();
        EXPECT_EQ(image.size(), (QSize{32, 32}));
        const double share = coverage(image, qRgb(255, 122, 89));
        EXPECT_GT(share, 0.02);
        EXPECT_LT(share, 0.95);
    }
}

TEST(Symbols, AnUnknownNameLooksLikeATopicOfUnknownKind) {
    EXPECT_EQ(symbolIcon("no.such.symbol"), symbolIcon("number"));
    EXPECT_EQ(symbolIcon(""), symbolIcon("number"));
}

TEST(Symbols, TheCacheTellsSizeColourScaleAndWeightApart) {
    const auto draw = [](double size, QColor color, double scale, SymbolWeight weight) {
        return symbolPixmap("info.circle", size, color, scale, weight);
    };
    const QPixmap base = draw(14, Qt::white, 1, SymbolWeight::regular);
    EXPECT_EQ(draw(14, Qt::white, 1, SymbolWeight::regular).cacheKey(), base.cacheKey());
    EXPECT_EQ(draw(14, Qt::white, 1.5, SymbolWeight::regular).deviceIndependentSize(),
              (QSizeF{14, 14}));
    EXPECT_EQ(draw(15, Qt::white, 1, SymbolWeight::regular).width(), 15);
    const QColor faint{255, 255, 255, 100};
    EXPECT_LE(draw(14, faint, 1, SymbolWeight::regular).toImage().pixelColor(7, 10).alpha(), 100);
    EXPECT_GT(coverage(draw(28, Qt::white, 1, SymbolWeight::bold).toImage(), 0xffffffff),
              coverage(draw(28, Qt::white, 1, SymbolWeight::regular).toImage(), 0xffffffff) * 1.2);
}

} // namespace
} // namespace quillon
