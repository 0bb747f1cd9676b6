// Builds the parts of the guide, from top to bottom.
#include "artwork/Palette.h"
#include "state/Store.h"
#include "ui/controls/BrandViews.h"
#include "ui/controls/Buttons.h"
#include "ui/setup/Badge.h"
#include "ui/setup/SetupView.h"
#include "ui/setup/StepRow.h"
#include "ui/setup/TokenStep.h"
#include "ui/setup/TopicChips.h"
#include "ui/text/IconLabel.h"
#include "ui/text/Keycap.h"
#include "ui/text/SymbolView.h"

#include <QDesktopServices>
#include <QUrl>
#include <QVBoxLayout>

#include <tuple>

namespace quillon {

namespace {

constexpr double iconPoints = 52;
constexpr double wordmarkPoints = 24;
constexpr double sealPoints = 30;

struct Titled {
    const char* text;
    const char* symbol;
};

constexpr std::array<Titled, stepCount> stepTitles{{
    {QT_TRANSLATE_NOOP("quillon::SetupView", "Create your bot"), "sparkles"},
    {QT_TRANSLATE_NOOP("quillon::SetupView", "Paste the token"), "key.fill"},
    {QT_TRANSLATE_NOOP("quillon::SetupView", "Make your group"), "person.3.fill"},
    {QT_TRANSLATE_NOOP("quillon::SetupView", "Create the topics"), "number"},
}};

constexpr std::array<Titled, 4> groupSteps{{
    {QT_TRANSLATE_NOOP("quillon::SetupView",
                       "**New Group** → add your bot → name it anything (like “My Outbox”) → "
                       "Create."),
     "person.fill.badge.plus"},
    {QT_TRANSLATE_NOOP("quillon::SetupView",
                       "Tap the **group name** → tap the **pencil** → turn on **Topics** (just "
                       "below Appearance) → Save."),
     "pencil"},
    {QT_TRANSLATE_NOOP("quillon::SetupView",
                       "In the members list, **hold** your bot → **Promote to admin** → keep "
                       "**Manage Topics** on → Save."),
     "hand.tap"},
    {QT_TRANSLATE_NOOP("quillon::SetupView", "Send “hi” in the group."), "hand.wave"},
}};

constexpr int betweenParts = Space::small + Space::hair;

/// One line of the instructions for the group: a symbol in a badge, and a text.
class GroupStep : public View {
public:
    GroupStep(const char* symbol, const QString& text) {
        setAccessibleRole(QAccessible::ListItem);
        auto* row = rowIn(this, betweenParts);
        auto* badge = new Badge;
        badge->setSymbol(symbol);
        auto* label = new IconLabel{markedUp(text)};
        setAccessibleName(label->accessibleText());
        row->addWidget(badge, 0, Qt::AlignTop);
        row->addWidget(label, 1, Qt::AlignVCenter);
    }
};

} // namespace

QWidget* SetupView::buildHeader() {
    auto* header = new QWidget;
    auto* row = rowIn(header, Space::medium);
    row->addWidget(new AppIconView{iconPoints});
    auto* words = new QVBoxLayout;
    words->setSpacing(Space::hair);
    words->addStretch(1);
    words->addWidget(new Wordmark{wordmarkPoints}, 0, Qt::AlignLeading);
    words->addWidget(new IconLabel{
        tr("Copy on Mac. Paste on phone."), "laptopcomputer.and.iphone", {.ink = Ink::secondary}});
    words->addStretch(1);
    row->addLayout(words, 1);
    return header;
}

QVBoxLayout* SetupView::buildRows() {
    const std::array<QWidget*, stepCount> contents{buildBotStep(), buildTokenStep(),
                                                   buildGroupStep(), buildTopicsStep()};
    auto* column = new QVBoxLayout;
    column->setSpacing(Space::small);
    for (int n = 1; n <= stepCount; ++n) {
        const auto i = static_cast<std::size_t>(n - 1);
        rows_.at(i) =
            new StepRow{n, tr(stepTitles.at(i).text), stepTitles.at(i).symbol, contents.at(i)};
        column->addWidget(rows_.at(i));
        connect(rows_.at(i), &StepRow::toggle, this, [this, n] { toggle(n); });
    }
    return column;
}

QWidget* SetupView::buildBotStep() {
    auto* content = new QWidget;
    auto* column = columnIn(content, betweenParts);
    column->addWidget(new IconLabel{markedUp(
        tr("In Telegram, open **@BotFather**, send **/newbot** and follow the steps. It gives you "
           "a token. The bot is yours alone."))});
    auto* open = new TextButton{tr("&Open BotFather"), telegramSymbol, {.symbolInk = telegramBlue}};
    column->addWidget(open, 0, Qt::AlignLeading);
    connect(open, &QPushButton::clicked, this,
            [] { QDesktopServices::openUrl(QUrl{QString::fromLatin1(botFatherAddress)}); });
    return content;
}

QWidget* SetupView::buildTokenStep() {
    token_ = new TokenStep;
    connect(token_, &TokenStep::connectWanted, this, &SetupView::connectBot);
    connect(token_, &TokenStep::anotherBotWanted, this, [this] { store_.forgetBot(); });
    return token_;
}

QWidget* SetupView::buildGroupStep() {
    auto* content = new QWidget;
    auto* column = columnIn(content, betweenParts);
    column->addWidget(new IconLabel{tr("In Telegram:")});
    for (const Titled& line : groupSteps)
        column->addWidget(new GroupStep{line.symbol, tr(line.text)});
    findGroup_ = new TextButton{{}, "magnifyingglass", {.kind = ButtonKind::prominent}};
    column->addWidget(findGroup_, 0, Qt::AlignLeading);
    connect(findGroup_, &QPushButton::clicked, this,
            [this] { run([&store = store_] { return store.findGroup(); }); });
    return content;
}

QWidget* SetupView::buildTopicsStep() {
    auto* content = new QWidget;
    auto* column = columnIn(content, betweenParts);
    chips_ = new TopicChips;
    column->addWidget(chips_);
    createTopics_ = new TextButton{{}, {}, {.kind = ButtonKind::prominent}};
    column->addWidget(createTopics_, 0, Qt::AlignLeading);
    connect(createTopics_, &QPushButton::clicked, this,
            [this] { run([&store = store_] { return store.createTopics(); }); });
    return content;
}

QWidget* SetupView::buildClosing() {
    auto* closing = new QWidget;
    auto* column = new QVBoxLayout{closing};
    column->setContentsMargins(0, Space::small, 0, Space::small);
    column->setSpacing(Space::small);
    column->addWidget(
        new SymbolView{"checkmark.seal.fill", {.size = sealPoints, .ink = Palette::green}}, 0,
        Qt::AlignHCenter);
    auto* ready =
        new IconLabel{tr("You're all set."), {}, {.style = Text::title, .align = Qt::AlignHCenter}};
    ready->setAccessibleRole(QAccessible::Notification);
    column->addWidget(ready, 0, Qt::AlignHCenter);
    auto* sentence = new QHBoxLayout;
    sentence->setSpacing(Space::tight);
    sentence->addStretch(1);
    sentence->addWidget(
        new IconLabel{tr("Copy anything, then press"), {}, {.ink = Ink::secondary}});
    sentence->addSpacing(Space::hair);
    keys_ = new KeyRow{KeyKind::label};
    sentence->addWidget(keys_);
    sentence->addStretch(1);
    column->addLayout(sentence);
    return closing;
}

} // namespace quillon
