#include "artwork/Colors.h"
#include "support/Controls.h"
#include "ui/text/IconLabel.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

TEST(IconLabel, ShowsAPlainTextAsItIs) {
    for (const char* const text : {"**", "a **b** c", "*****", "no stars"}) {
        IconLabel label{QString::fromUtf8(text)};
        EXPECT_EQ(nameOf(label), QString::fromUtf8(text));
        EXPECT_EQ(label.shownText().toStdString(), text);
        EXPECT_EQ(label.text().runs(), (std::vector{StyledText::Run{QString::fromUtf8(text)}}));
    }
}

TEST(IconLabel, ALongNameLosesItsMiddleOnTheScreenButIsReadWhole) {
    const QString name = QStringLiteral("Quarterly-") + QStringLiteral("long-").repeated(40) +
                         QStringLiteral("end.pdf");
    IconLabel middle{name, "doc", {.overflow = Overflow::elideMiddle}};
    middle.resize(200, 20);
    EXPECT_THAT(middle.shownText().toStdString(), StartsWith("Quart"));
    EXPECT_THAT(middle.shownText().toStdString(), EndsWith("end.pdf"));
    EXPECT_THAT(middle.shownText().toStdString(), HasSubstr("…"));
    EXPECT_EQ(nameOf(middle), name);
    EXPECT_LT(middle.minimumSizeHint().width(), 150) << "would push its row apart";

    middle.setLook({.overflow = Overflow::elideEnd});
    EXPECT_THAT(middle.shownText().toStdString(), EndsWith("…"));
    middle.resize(middle.sizeHint());
    EXPECT_EQ(middle.shownText(), name) << "it asks for the room it needs";
}

TEST(IconLabel, GrowsDownwardsAsItBecomesNarrower) {
    const IconLabel label{QStringLiteral("several words of a paragraph ").repeated(4), "link"};
    const int line = label.minimumSizeHint().height();
    EXPECT_EQ(label.heightForWidth(10'000), line);
    EXPECT_GE(label.heightForWidth(200), 3 * line);
    EXPECT_GT(label.heightForWidth(100), label.heightForWidth(200));
}

TEST(Theme, TextKeepsItsContrastOnEveryGround) {
    for (const QColor ground : {QColor{Qt::white}, QColor{239, 240, 241}, QColor{246, 240, 220},
                                QColor{60, 60, 60}, QColor{36, 38, 42}, QColor{Qt::black}}) {
        const Theme theme{QPalette{ground}};
        EXPECT_EQ(theme.dark(), ground.lightness() < 128);
        for (const Ink ink : {Ink::primary, Ink::secondary, Ink::tertiary, Ink::warning,
                              Ink::destructive, Ink::accent}) {
            const double least = ink == Ink::accent ? graphicContrast : textContrast;
            const QColor card = theme.cardFill();
            EXPECT_GE(contrast(laidOver(theme.color(ink), card), card), least * 0.97)
                << ground.name().toStdString() << " ink " << static_cast<int>(ink);
        }
    }
}

} // namespace
} // namespace quillon::test
