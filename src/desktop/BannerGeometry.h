#pragma once

#include "state/BannerPosition.h"

#include <QFont>
#include <QRect>
#include <QString>
#include <QStringList>

/// Where everything about the banner goes, in device-independent pixels.
namespace quillon {

/// The banner's parts around a text of some size: mark, text and symbol in a row, in a capsule, in
/// a window that leaves a transparent margin for the shadow.
struct BannerLayout {
    QSize window;
    QRectF capsule;
    QRectF mark;
    QRectF text;
    QRectF symbol;
};

BannerLayout layOutBanner(QSizeF text);

/// The same row for writing that goes from right to left.
BannerLayout mirrored(BannerLayout layout);

/// The window's frame on a screen, given the part of the screen that no panel or dock covers.
QRect bannerFrame(QRect visible, QSize window, BannerPosition position);

/// The text as the banner shows it, and the width of its widest line.
struct BannerText {
    QStringList lines;
    double width = 0;
};

/// Wraps at words, inside a word only when it is wider than a line, and ends the second line with
/// an ellipsis when there is more. Always at least one line, if an empty one.
BannerText wrapBannerText(QString text, const QFont& font);

} // namespace quillon
