#include "Accessible.h"

#include "artwork/Colors.h"
#include "ui/controls/Card.h"
#include "ui/text/IconLabel.h"
#include "ui/text/Keycap.h"
#include "ui/text/SymbolView.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

TEST(IconLabel, SaysItsTextWithoutTheStarsOfBoldParts) {
    struct {
        const char* text;
        const char* plain;
    } const cases[] = {
        {"Tap **Save** twice", "Tap Save twice"},
        {"**New Group** → **Promote**", "New Group → Promote"},
        {"send **/newbot** and", "send /newbot and"},
        {"2 ** 3", "2 ** 3"},
        {"**a** ** b", "a ** b"},
        {"*.png", "*.png"},
    };
    for (const auto& each : cases) {
        IconLabel label{markedUp(QString::fromUtf8(each.text))};
        EXPECT_EQ(accessibleName(label), each.plain);
        EXPECT_EQ(label.shownText().toStdString(), each.plain);
        EXPECT_EQ(accessible(label).role(), QAccessible::StaticText);
    }
}

TEST(IconLabel, ShowsAPlainTextAsItIs) {
    for (const char* const text : {"**", "a **b** c", "*****", "no stars"}) {
        IconLabel label{QString::fromUtf8(text)};
        EXPECT_EQ(accessibleName(label), text);
        EXPECT_EQ(label.shownText().toStdString(), text);
        EXPECT_EQ(label.text().runs(), (std::vector{StyledText::Run{QString::fromUtf8(text)}}));
    }
}

TEST(IconLabel, GivesBoldPartsTheirRoom) {
    const QString word = QStringLiteral("wwwwww");
    const QString stars = QStringLiteral("**");
    EXPECT_GT(IconLabel{markedUp(stars + word + stars)}.sizeHint().width(),
              IconLabel{word}.sizeHint().width());
}

TEST(IconLabel, ALongNameLosesItsMiddleOnTheScreenButIsReadWhole) {
    const QString name = QStringLiteral("Quarterly-") + QStringLiteral("long-").repeated(40) +
                         QStringLiteral("end.pdf");
    IconLabel middle{name, "doc", {.overflow = Overflow::elideMiddle}};
    middle.resize(200, 20);
    EXPECT_THAT(middle.shownText().toStdString(), StartsWith("Quart"));
    EXPECT_THAT(middle.shownText().toStdString(), EndsWith("end.pdf"));
    EXPECT_THAT(middle.shownText().toStdString(), HasSubstr("…"));
    EXPECT_EQ(accessibleName(middle), name.toStdString());
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

TEST(Views, TellAssistiveTechnologyWhatTheyShow) {
    Card card{QStringLiteral("Shortcut"), "command"};
    EXPECT_EQ(accessible(card).role(), QAccessible::Grouping);
    EXPECT_EQ(accessibleName(card), "Shortcut");
    SymbolView decoration{"power"};
    EXPECT_TRUE(accessible(decoration).state().invisible);
    decoration.setAccessibleName(QStringLiteral("Sent"));
    decoration.show();
    EXPECT_FALSE(accessible(decoration).state().invisible);
    Keycap cap{QStringLiteral("⌃")};
    EXPECT_EQ(accessibleName(cap), "Control");
    EXPECT_EQ(spokenKeys({QStringLiteral("⌃"), QStringLiteral("⌥"), QStringLiteral("V")}),
              QStringLiteral("Control Alt V"));
    IconLabel label{QStringLiteral("one")};
    label.setText(markedUp(QStringLiteral("Press **⌃⌥V**.")));
    EXPECT_EQ(accessibleName(label), "Press Control Alt V.");
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
