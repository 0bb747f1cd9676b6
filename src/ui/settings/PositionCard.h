#pragma once

#include "state/BannerPosition.h"
#include "ui/controls/Buttons.h"

namespace quillon {

class IconLabel;
class SymbolView;

/// A card for one of the banner's positions. A click (clicked()) picks it.
class PositionCard : public ContentButton {
    Q_OBJECT

public:
    explicit PositionCard(BannerPosition position);

    /// Shows whether this is the banner's position now.
    void showSelected(bool selected);

protected:
    void paintGround(QPainter& painter, const Theme& theme) override;

private:
    SymbolView* symbol_;
    IconLabel* label_;
};

} // namespace quillon
