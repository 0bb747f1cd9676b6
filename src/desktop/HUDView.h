#pragma once

#include "desktop/BannerGeometry.h"

#include <QPixmap>
#include <QRegion>

#include <string>

namespace quillon {

/// What one banner looks like: the mark, the text and a symbol on a dark capsule.
class HUDView {
public:
    /// `ok` tells good news from a problem by the symbol's colour.
    HUDView(const std::string& text, std::string symbol, bool ok);

    /// The size of the window that shows this, shadow and margin included.
    [[nodiscard]] QSize size() const { return layout_.window; }

    /// The picture of it. With `blended` it has a shadow and the capsule lets a little through;
    /// otherwise it is solid, and meant to be cut out along `outline()`.
    [[nodiscard]] QPixmap render(double devicePixelRatio, bool blended) const;

    [[nodiscard]] QRegion outline() const;

private:
    void paintCapsule(QPainter& painter, bool blended) const;
    void paintRow(QPainter& painter, double devicePixelRatio) const;

    QFont font_;
    BannerText text_;
    BannerLayout layout_;
    std::string symbol_;
    bool ok_;
};

} // namespace quillon
