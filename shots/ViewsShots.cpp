// Takes a picture of every view, in the states that a window never has all at once.
#include "artwork/Brand.h"
#include "artwork/Palette.h"
#include "shots/Shots.h"
#include "state/Topic.h"
#include "ui/controls/BrandViews.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/Card.h"
#include "ui/controls/MenuBarIcon.h"
#include "ui/controls/SegmentedPicker.h"
#include "ui/controls/Spinner.h"
#include "ui/controls/Switch.h"
#include "ui/controls/Tile.h"
#include "ui/text/Chip.h"
#include "ui/text/Keycap.h"
#include "ui/text/SymbolView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include <initializer_list>

namespace {

using namespace quillon;

QString operator""_q(const char* text, std::size_t size) {
    return QString::fromUtf8(text, static_cast<qsizetype>(size));
}

/// A button like the panel's send button.
class CoralButton : public ContentButton {
protected:
    void paintGround(QPainter& painter, const Theme& theme) override {
        paintBox(painter, rect(), cornerRadius(),
                 theme.fill(isDown() ? Brand::coral.darker(108) : Brand::coral));
    }
    [[nodiscard]] Tint focusTint() const override { return Brand::navy; }
};

QHBoxLayout* row(std::initializer_list<QWidget*> views, int spacing = Space::small) {
    auto* row = new QHBoxLayout;
    row->setSpacing(spacing);
    for (QWidget* view : views)
        row->addWidget(view);
    row->addStretch(1);
    return row;
}

/// Makes the button look as if the pointer were on it.
QWidget* hovered(QAbstractButton* button) {
    button->setAttribute(Qt::WA_UnderMouse);
    return button;
}

QWidget* pressed(QAbstractButton* button) {
    button->setDown(true);
    return button;
}

QWidget* disabled(QWidget* view) {
    view->setEnabled(false);
    return view;
}

ContentButton* sendButton() {
    auto* button = new CoralButton;
    button->setCornerRadius(Space::cardRadius);
    button->setAccessibleName("Send clipboard to phone"_q);
    auto* symbol = new SymbolView{
        "photo",
        {.size = 18, .weight = SymbolWeight::semibold, .ink = Brand::navy, .frameWidth = 24}};
    auto* texts = new QVBoxLayout;
    texts->setSpacing(Space::hair);
    texts->addWidget(
        new IconLabel{"Send clipboard"_q, {}, {.style = {14, QFont::Bold}, .ink = Brand::navy}});
    texts->addWidget(new IconLabel{
        "A picture, 1920 × 1080, from somewhere far away"_q,
        {},
        {.style = Text::caption, .ink = QColor{11, 16, 32, 191}, .overflow = Overflow::elideEnd}});
    auto* content = new QHBoxLayout{button};
    content->setContentsMargins(12, 12, 12, 12);
    content->addWidget(symbol);
    content->addLayout(texts, 1);
    content->addSpacing(6);
    content->addWidget(new KeyRow{KeyKind::darkCap, {"⌃"_q, "⌥"_q, "V"_q}});
    return button;
}

Card* textCard() {
    auto* card = new Card{"Labels"_q, "text.alignleft"};
    card->body()->addLayout(row({new AppIconView{32}, new Wordmark{15}, new TelegramIcon{16},
                                 new AppIconView{64}, new Wordmark{28}}));
    card->body()->addWidget(new IconLabel{"Title"_q, "sparkles", {.style = Text::title}});
    card->body()->addWidget(new IconLabel{"Headline"_q, "key.fill", {.style = Text::headline}});
    card->body()->addWidget(new IconLabel{markedUp(
        "In Telegram, open **@BotFather**, send **/newbot** and follow the steps. It gives you a token. The bot is yours alone."_q)});
    card->body()->addWidget(new IconLabel{
        "Nothing sent yet."_q, "tray", {.style = Text::callout, .ink = Ink::tertiary}});
    card->body()->addWidget(
        new IconLabel{"⌃⌥V is already used by another app. Pick another shortcut in Settings."_q,
                      "exclamationmark.triangle.fill",
                      {.style = Text::caption, .ink = Ink::warning}});
    card->body()->addWidget(
        new IconLabel{"Eine-sehr-lange-Datei-mit-einem-Namen-ohne-Ende-Fassung-3.pdf"_q,
                      "doc",
                      {.ink = Ink::secondary, .overflow = Overflow::elideMiddle}});
    card->body()->addWidget(new IconLabel{
        "You're all set."_q,
        "checkmark.seal.fill",
        {.style = Text::headline, .symbolInk = Ink::accent, .align = Qt::AlignHCenter}});
    const QStringList keys{"⌃"_q, "⌥"_q, "V"_q};
    card->body()->addLayout(row({new KeyRow{KeyKind::cap, keys}, new KeyRow{KeyKind::label, keys},
                                 new Spinner, new SymbolView{"power", {.size = 20}}}));
    return card;
}

Card* rowsCard() {
    auto* card = new Card{"After sending"_q, "paperplane.fill"};
    auto* sound = new Switch{"Play a &sound"_q, "speaker.wave.2.fill", Palette::pink};
    sound->setChecked(true);
    auto* banner = new Switch{"Show a banner"_q, "bell.badge.fill", Palette::orange};
    auto* off = new Switch{"Open Quillon when I log in, whenever that may be, without a word"_q,
                           "power", Palette::green};
    off->setChecked(true);
    auto* picker = new SegmentedPicker{{"⌃⌥V"_q, "⌃⌥P"_q, "⌃⌥C"_q}};
    picker->setCurrentIndex(0);
    auto* shortcut = new QHBoxLayout;
    shortcut->addWidget(new TileLabel{"Send clipboard"_q, "keyboard.fill", Palette::blue}, 1);
    shortcut->addWidget(picker);
    card->body()->addLayout(shortcut);
    card->body()->addWidget(sound);
    card->body()->addWidget(banner);
    card->body()->addWidget(disabled(off));
    card->body()->addWidget(new Divider);
    card->body()->addWidget(new TileLabel{"Bot"_q, "cpu.fill", Palette::teal});
    card->body()->addLayout(
        row({new Tile{"doc.fill", Palette::purple}, new Tile{"photo.fill", Palette::yellow},
             new Tile{"info.circle.fill", Palette::gray}}));
    auto* chips = new QHBoxLayout;
    for (const Topic& topic : Topic::defaults()) {
        chips->addWidget(
            new Chip{QString::fromStdString(topic.name), QColor{static_cast<QRgb>(topic.color)}});
    }
    chips->addStretch(1);
    card->body()->addLayout(chips);
    return card;
}

Card* buttonsCard() {
    using enum ButtonKind;
    auto* card = new Card{"Buttons"_q, "hand.tap"};
    const auto button = [](const char* text, const char* symbol, ButtonKind kind) {
        return new TextButton{QString::fromUtf8(text), symbol, {.kind = kind}};
    };
    card->body()->addLayout(row({button("Start setup", "arrow.right.circle.fill", prominent),
                                 button("&Connect", "link", bordered),
                                 button("Disconnect", "xmark.circle.fill", destructive)}));
    card->body()->addLayout(
        row({disabled(button("Start setup", "arrow.right.circle.fill", prominent)),
             disabled(button("Connect", "link", bordered)),
             disabled(button("Disconnect", "xmark.circle.fill", destructive))}));
    card->body()->addLayout(row(
        {button("Settings…", "gearshape.fill", borderless), button("Quit", "power", borderless),
         button("", "chevron.down", bordered),
         new TextButton{"Save names to Telegram"_q, telegramSymbol, {.symbolInk = telegramBlue}}}));
    for (const ButtonKind kind : {prominent, bordered, borderless}) {
        card->body()->addLayout(row(
            {hovered(button("Hovered", "link", kind)), pressed(button("Pressed", "link", kind))}));
    }
    card->body()->addWidget(sendButton());
    auto* busy = sendButton();
    busy->setBusy(true);
    card->body()->addWidget(busy);
    return card;
}

QHBoxLayout* menuBarIcons() {
    const bool dark = qEnvironmentVariableIntValue("DARK") != 0;
    auto* icons = new QHBoxLayout;
    for (const int side : {16, 22, 24, 32, 48}) {
        auto* icon = new QLabel;
        icon->setPixmap(MenuBarIcon::image(dark ? Qt::white : Qt::black).pixmap(side));
        icons->addWidget(icon);
    }
    icons->addStretch(1);
    return icons;
}

QPixmap gallery() {
    QWidget window;
    auto* columns = new QHBoxLayout{&window};
    columns->setContentsMargins(Space::large, Space::large, Space::large, Space::large);
    columns->setSpacing(Space::medium);
    auto* left = new QVBoxLayout;
    left->setSpacing(Space::medium);
    left->addWidget(textCard());
    left->addLayout(menuBarIcons());
    left->addStretch(1);
    auto* right = new QVBoxLayout;
    right->setSpacing(Space::medium);
    right->addWidget(rowsCard());
    right->addWidget(buttonsCard());
    right->addStretch(1);
    columns->addLayout(left, 1);
    columns->addLayout(right, 1);
    window.resize(static_cast<int>(Theme::length(820)), 10);
    window.show();
    return test::pictureOf(window);
}

} // namespace

int main(int argc, char** argv) {
    return test::takeShots(argc, argv, {{"gallery", gallery}}, {});
}
