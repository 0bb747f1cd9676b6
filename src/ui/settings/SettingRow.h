#pragma once

#include "ui/controls/Tile.h"

#include <QHBoxLayout>

namespace quillon {

/// A row of a card: its label at one end, and what belongs to it at the other, which gives way when
/// both are too long.
[[nodiscard]] inline QHBoxLayout* settingRow(TileLabel* label, QWidget* trailing) {
    auto* row = new QHBoxLayout;
    row->setSpacing(Space::medium);
    label->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    row->addWidget(label);
    row->addStretch(1);
    row->addWidget(trailing);
    return row;
}

} // namespace quillon
