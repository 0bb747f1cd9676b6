#include "artwork/Colors.h"
#include "support/Await.h"
#include "support/Controls.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/ScrollView.h"
#include "ui/controls/TextViews.h"
#include "ui/text/Chip.h"
#include "ui/text/IconLabel.h"

#include <QElapsedTimer>
#include <QScrollBar>
#include <QVBoxLayout>

namespace quillon::test {
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

TEST(Views, CutAnEndlessTextBeforeTheyLayItOutAndTell) {
    const QString endless = QStringLiteral("words without an end ").repeated(500'000);
    QElapsedTimer time;
    time.start();
    QWidget window;
    auto* column = new QVBoxLayout{&window};
    for (const Overflow overflow : {Overflow::wrap, Overflow::elideEnd, Overflow::elideMiddle})
        column->addWidget(new IconLabel{endless, {}, {.overflow = overflow}});
    column->addWidget(new Chip{endless, Qt::red});
    auto* button = new ContentButton;
    button->setAccessibleDescription(endless);
    column->addWidget(button);
    auto* message = new MessageText{endless, 300};
    column->addWidget(message);
    const Controls controls{window};
    window.grab();
    EXPECT_LT(time.elapsed(), 1000);
    for (const std::string& text : controls.seen())
        EXPECT_LE(QString::fromStdString(text).size(), 10'001);
    EXPECT_LE(accessible(*button).text(QAccessible::Description).size(), 1'001);
    EXPECT_THAT(message->toPlainText().toStdString(), EndsWith("an end "));
}

TEST(ScrollView, ShowsWhatTheKeyboardIsLedToFromAnywhere) {
    QWidget window;
    auto* content = new QWidget;
    auto* rows = columnIn(content, 0);
    std::vector<TextButton*> buttons(20);
    for (TextButton*& button : buttons)
        rows->addWidget(button = new TextButton{QStringLiteral("row")});
    auto* view = new ScrollView{content};
    auto* outside = new TextButton{QStringLiteral("outside")};
    auto* column = columnIn(&window, 0);
    column->addWidget(outside);
    column->addWidget(view);
    window.resize(200, 200);
    window.show();
    ASSERT_TRUE(waitUntil([&] { return window.isActiveWindow(); }));
    const auto inSight = [&](int row) {
        QCoreApplication::processEvents();
        const TextButton& button = *buttons.at(static_cast<std::size_t>(row));
        return button.visibleRegion().boundingRect() == button.rect();
    };
    outside->setFocus();
    EXPECT_FALSE(inSight(19));
    QTest::keyClick(outside, Qt::Key_Backtab);
    EXPECT_TRUE(inSight(19)) << "by the Tab key, from outside";
    buttons[10]->setFocus(Qt::OtherFocusReason);
    EXPECT_TRUE(inSight(10)) << "by the program";
    rows->insertSpacing(0, 150);
    EXPECT_TRUE(inSight(10)) << "also when it moves";
    view->verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMinimum);
    rows->insertSpacing(0, 10);
    EXPECT_FALSE(inSight(10)) << "unless the user has scrolled on";
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

} // namespace quillon::test
