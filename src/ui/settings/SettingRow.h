#pragma once

#include "ui/controls/Tile.h"

#include <QHBoxLayout>

namespace quillon {

/// A row of a card: its label at the leading end, and its control or value at the other, which
/// becomes narrower if there is too little room for both.
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
