#pragma once

#include "state/BannerPosition.h"
#include "ui/controls/Buttons.h"

namespace quillon {

class IconLabel;
class SymbolView;

/// A place that the banner can have, as a card to pick it with (`clicked`).
class PositionCard : public ContentButton {
    Q_OBJECT

public:
    explicit PositionCard(BannerPosition position, QWidget* parent = nullptr);

    /// It is the banner's place at the moment.
    void showSelected(bool selected);

protected:
    void paintGround(QPainter& painter, const Theme& theme) override;

private:
    SymbolView* symbol_;
    IconLabel* label_;
};

} // namespace quillon
