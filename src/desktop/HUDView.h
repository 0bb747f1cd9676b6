#pragma once

#include "desktop/BannerGeometry.h"

#include <QPixmap>
#include <QRegion>

#include <string>

namespace quillon {

/// The picture of one banner: the mark, the text and a symbol on a dark capsule.
class HUDView {
public:
    /// `ok` picks the symbol's colour: that of good news or that of a problem.
    HUDView(const std::string& text, std::string symbol, bool ok);

    /// The size of the banner's window, which includes the margin for the shadow.
    [[nodiscard]] QSize size() const { return layout_.window; }

    /// Paints the banner. If `blended`, it has a shadow and a slightly translucent capsule. If not,
    /// the whole picture is solid, and the window has to be cut out along outline().
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
