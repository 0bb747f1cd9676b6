#include "ui/settings/PositionCard.h"

#include "artwork/Brand.h"
#include "artwork/Colors.h"
#include "ui/text/IconLabel.h"
#include "ui/text/SymbolView.h"

#include <QPainter>
#include <QVBoxLayout>

#include <array>

namespace quillon {

namespace {

constexpr double symbolPoints = 22;
constexpr double borderWidth = 1.5;
constexpr double selectedFill = 0.12;
constexpr double cardCorner = 9;

/// In the order of BannerPosition. Each is a whole phrase, because languages differ in "in the".
constexpr std::array spokenNames{
    QT_TRANSLATE_NOOP("quillon::PositionCard", "Banner in the top"),
    QT_TRANSLATE_NOOP("quillon::PositionCard", "Banner in the middle"),
    QT_TRANSLATE_NOOP("quillon::PositionCard", "Banner in the bottom"),
};

} // namespace

PositionCard::PositionCard(BannerPosition position)
    : symbol_{new SymbolView{std::string{symbol(position)}, {.size = symbolPoints}}},
      label_{new IconLabel{QString::fromStdString(label(position))}} {
    setCornerRadius(cardCorner);
    setAccessibleName(tr(spokenNames.at(static_cast<std::size_t>(position))));
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(Space::small, Space::small + Space::hair, Space::small,
                               Space::small);
    column->setSpacing(Space::tight);
    column->addWidget(symbol_, 0, Qt::AlignHCenter);
    column->addWidget(label_);
    showSelected(false);
}

void PositionCard::showSelected(bool selected) {
    const Tint ink = selected ? Ink::accent : Ink::secondary;
    symbol_->setLook({.size = symbolPoints, .ink = ink});
    label_->setLook({.style = selected ? Text::callout.semibold() : Text::callout,
                     .ink = selected ? Tint{Ink::primary} : ink,
                     .overflow = Overflow::elideEnd,
                     .align = Qt::AlignHCenter});
    setSelected(selected);
}

void PositionCard::paintGround(QPainter& painter, const Theme& theme) {
    const bool taken = selected().value_or(false);
    const bool lit = isEnabled() && (underMouse() || isDown());
    const QPen line = taken ? QPen{theme.fill(Brand::coral), borderWidth} : QPen{theme.separator()};
    const QColor fill = taken ? theme.fill(faded(Brand::coral, selectedFill))
                        : lit ? theme.hoverFill()
                              : theme.quaternaryFill();
    paintBox(painter, rect(), cornerRadius() - line.widthF() / 2, fill, line);
}

} // namespace quillon
