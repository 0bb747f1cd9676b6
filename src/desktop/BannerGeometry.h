#pragma once

#include "platform/Overlay.h"
#include "state/BannerPosition.h"

#include <QFont>
#include <QRect>
#include <QString>
#include <QStringList>

/// The places and sizes of the banner and its parts, in device-independent pixels. `scale` is by
/// how much texts are larger than those of the design; what belongs to the text grows with it.
namespace quillon {

/// The places of the banner's parts in its window: mark, text and symbol stand in a row in a
/// capsule, around which the window leaves a transparent margin for the shadow.
struct BannerLayout {
    QSize window;
    QRectF capsule;
    QRectF mark;
    QRectF text;
    QRectF symbol;
};

/// Lays the banner out around a text of this size.
BannerLayout layOutBanner(QSizeF text, double scale = 1);

/// The same layout for writing that goes from right to left.
BannerLayout mirrored(BannerLayout layout);

/// Where on a screen the banner lies: at which edge of the part that no panel covers, and how far
/// from it.
struct BannerAnchor {
    Overlay::Edge edge = Overlay::Edge::none;
    int distance = 0;
};

BannerAnchor bannerAnchor(BannerPosition position);

/// The window's frame on a screen. `visible` is the part of the screen that no panel covers.
QRect bannerFrame(QRect visible, QSize window, BannerPosition position);

/// The banner's text, wrapped into lines, and the width of the widest line.
struct BannerText {
    QStringList lines;
    double width = 0;
};

/// Wraps at words, and inside a word only if it is wider than a line. A text of more than two lines
/// ends with an ellipsis. The result has at least one line, which may be empty.
BannerText wrapBannerText(QString text, const QFont& font, double scale = 1);

} // namespace quillon
