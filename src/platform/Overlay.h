#pragma once

#include <QSize>

#include <functional>

class QImage;

namespace quillon {

/// One picture that the desktop itself lays over all windows, full-screen ones too, on the screen
/// in use, and keeps clear of the desktop's own bars. It never takes the focus and lets the mouse
/// through. For desktops that let no program place a window of its own so. Main thread only; no
/// call waits for the desktop.
class Overlay {
public:
    enum class Edge { top, none, bottom };

    struct Picture {
        /// In device-independent pixels.
        QSize size;
        /// The edge of the free part of the screen at which the picture lies, centred along it, and
        /// the distance to it in device-independent pixels; with no edge, in the middle.
        Edge edge = Edge::none;
        int distance = 0;
        /// Paints the picture with as many pixels to a device-independent one. Called again when
        /// the screen's scale turns out to be, or becomes, another.
        std::function<QImage(double devicePixelRatio)> paint;
    };

    virtual ~Overlay() = default;

    /// Shows the picture in place of the present one, with the present opacity.
    virtual void show(Picture picture) = 0;
    /// From 0, where it starts, to 1.
    virtual void setOpacity(double opacity) = 0;
    virtual void hide() = 0;
};

} // namespace quillon
