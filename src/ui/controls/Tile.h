#pragma once

#include "ui/text/IconLabel.h"

#include <string>

namespace quillon {

/// A symbol on a small coloured square. Decoration.
class Tile : public View {
    Q_OBJECT

public:
    Tile(std::string symbol, QColor color);
    void setSymbol(const std::string& symbol, QColor color);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

    /// The side of a tile in device-independent pixels.
    [[nodiscard]] static int side();
    /// Paints a tile as large as `box`, for views that contain one.
    static void paint(QPainter& painter, const QRectF& box, const std::string& symbol, QColor color,
                      const Theme& theme);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::string symbol_;
    QColor color_;
};

/// The label of a row: a tile, and a title after it.
class TileLabel : public View {
    Q_OBJECT

public:
    TileLabel(const QString& title, const std::string& symbol, QColor color,
              const TextStyle& style = Text::body);
};

} // namespace quillon
