#include "artwork/Colors.h"

#include "artwork/Brand.h"
#include "artwork/Palette.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(Colors, ALegibleColourKeepsItsHueAndGoesNoFurtherThanItMust) {
    EXPECT_EQ(legible(Brand::navy, Qt::white, textContrast), Brand::navy);
    for (const QColor color : {Palette::yellow, Palette::pink, Palette::blue, Palette::green}) {
        for (const QColor ground : {QColor{Qt::white}, QColor{Qt::black}, QColor{110, 110, 110}}) {
            const QColor result = legible(color, ground, textContrast);
            EXPECT_GE(contrast(result, ground), textContrast);
            if (result == color) continue;
            EXPECT_LT(contrast(result, ground), textContrast + 0.2);
            EXPECT_NEAR(result.hslHue(), color.hslHue(), 3);
        }
    }
}

} // namespace
} // namespace quillon
