#pragma once

#include "platform/Overlay.h"
#include "platform/linux/wayland/SharedImage.h"

#include <memory>
#include <vector>

namespace quillon {

/// One picture over all windows, from its first frame on until the object ends.
class OverlaySurface {
public:
    /// Calls `drawn` after each frame.
    OverlaySurface(LayerShell& shell, Overlay::Picture picture, double opacity,
                   std::function<void()> drawn);
    OverlaySurface(const OverlaySurface&) = delete;
    OverlaySurface& operator=(const OverlaySurface&) = delete;
    ~OverlaySurface() = default;

    void setOpacity(double opacity);
    /// Whether there has been a frame.
    [[nodiscard]] bool shown() const { return shown_; }

private:
    void listen();
    void place();
    void configure(std::uint32_t serial);
    void setScale(double scale);
    /// Draws as soon as the compositor is ready for a frame.
    void update();
    void draw(SharedImage& target);
    void paint(QImage& target);
    [[nodiscard]] QSize pixels() const;
    /// An image that is free to paint on; null while the compositor reads them all.
    [[nodiscard]] SharedImage* freeImage();
    void close();

    LayerShell& shell_;
    Overlay::Picture picture_;
    double opacity_;
    std::function<void()> drawn_;
    double scale_;
    QImage painted_; ///< the picture at this scale
    bool placed_ = false;
    bool outdated_ = true;
    bool shown_ = false;
    std::vector<std::unique_ptr<SharedImage>> images_;
    SurfacePointer surface_;
    viewport::Pointer viewport_;
    fractionalScale::Pointer fractions_;
    layerSurface::Pointer layer_;
    ProxyPointer frame_; ///< null when it is ready for a frame
};

} // namespace quillon
