#include "ui/settings/PositionCard.h"

#include "artwork/Brand.h"
#include "ui/views/Colors.h"
#include "ui/views/IconLabel.h"
#include "ui/views/SymbolView.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPainter>
#include <QVBoxLayout>

namespace quillon {

namespace {

constexpr double symbolPoints = 22;
constexpr double borderWidth = 1.5;
constexpr double selectedFill = 0.12;
constexpr double cardCorner = 9;

/// The position's name as the catalogue has it.
QString nameOf(BannerPosition position) {
    return QCoreApplication::translate("BannerPosition", label(position).data());
}

} // namespace

PositionCard::PositionCard(BannerPosition position, QWidget* parent)
    : ContentButton{parent},
      symbol_{new SymbolView{std::string{symbol(position)}, {.size = symbolPoints}}},
      label_{new IconLabel{nameOf(position)}} {
    setCornerRadius(cardCorner);
    setAccessibleName(tr("Banner in the %1").arg(locale().toLower(nameOf(position))));
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
    painter.setPen(taken ? QPen{theme.fill(Brand::coral), borderWidth}
                         : QPen{theme.separator(), 1});
    painter.setBrush(taken ? theme.fill(faded(Brand::coral, selectedFill))
                     : lit ? theme.hoverFill()
                           : theme.quaternaryFill());
    const double half = (taken ? borderWidth : 1) / 2;
    painter.drawRoundedRect(QRectF{rect()}.adjusted(half, half, -half, -half),
                            cornerRadius() - half, cornerRadius() - half);
}

} // namespace quillon
