#include "ui/panel/SendButton.h"

#include "artwork/Brand.h"
#include "artwork/Colors.h"
#include "ui/accessibility/Accessibility.h"
#include "ui/text/IconLabel.h"
#include "ui/text/Keycap.h"
#include "ui/text/SymbolView.h"

#include <QHBoxLayout>
#include <QPainter>

#include <utility>

namespace quillon {

namespace {

constexpr int padding = 12;
constexpr int leastGap = 6;
constexpr double symbolSize = 18;
constexpr double symbolFrame = 24;
constexpr double lineOpacity = 0.75;
constexpr TextStyle titleStyle{14, QFont::Bold};
// The lightness of the ground while pressed and under the pointer, as percentages that darker() and
// lighter() take.
constexpr int pressedDarker = 108;
constexpr int hoverLighter = 103;
/// The width of the line around the button while something is dragged over the panel.
constexpr double dropLine = 2;

} // namespace

SendButton::SendButton()
    : symbol_{new SymbolView{{},
                             {.size = symbolSize,
                              .weight = SymbolWeight::semibold,
                              .ink = Brand::navy,
                              .frameWidth = symbolFrame}}},
      title_{new IconLabel{{}, {}, {.style = titleStyle, .ink = Brand::navy}}},
      line_{new IconLabel{{},
                          {},
                          {.style = Text::caption,
                           .ink = faded(Brand::navy, lineOpacity),
                           .overflow = Overflow::elideEnd}}},
      keys_{new KeyRow{KeyKind::darkCap}} {
    setCornerRadius(Space::cardRadius);
    setAccessibleName(tr("Send clipboard to phone"));

    auto* const column = new QVBoxLayout;
    column->setSpacing(Space::hair);
    column->addWidget(title_);
    column->addWidget(line_);

    auto* const row = rowIn(this, 0, padding);
    row->addWidget(symbol_, 0, Qt::AlignVCenter);
    row->addSpacing(Space::small);
    row->addLayout(column, 1);
    row->addSpacing(leastGap);
    row->addWidget(keys_, 0, Qt::AlignVCenter);
}

void SendButton::setClip(const Clipboard::Summary& clip, bool busy) {
    const QString line = QString::fromStdString(clip.line);
    symbol_->setSymbol(busy ? "arrow.up.circle" : clip.symbol);
    title_->setText(busy ? tr("Sending…") : tr("Send clipboard"));
    line_->setText(line);
    setBusy(busy);
    setDescription(*this, busy ? tr("Sending…") : line);
}

void SendButton::setDrop(bool offered) {
    if (offered) {
        title_->setText(tr("Drop to send"));
        line_->setText(tr("Files, a picture or text"));
    }
    if (std::exchange(drop_, offered) != offered) update();
}

void SendButton::setShortcut(ShortcutChoice shortcut, bool shown) {
    keys_->setLabels(keyLabels(shortcut));
    keys_->setVisible(shown);
}

void SendButton::paintGround(QPainter& painter, const Theme& theme) {
    QColor ground = Brand::coral;
    if (isDown()) {
        ground = ground.darker(pressedDarker);
    } else if (isEnabled() && (underMouse() || drop_)) {
        ground = ground.lighter(hoverLighter);
    }
    const QPen edge = drop_ ? QPen{theme.color(Brand::navy), dropLine} : QPen{Qt::NoPen};
    paintBox(painter, rect(), cornerRadius(), theme.fill(ground), edge);
}

Tint SendButton::focusTint() const {
    return Brand::navy;
}

} // namespace quillon
