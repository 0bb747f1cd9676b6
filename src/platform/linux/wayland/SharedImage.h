#pragma once

#include "platform/linux/wayland/LayerShell.h"

#include <QImage>

#include <functional>

namespace quillon {

/// An image in memory that the compositor shows without a copy.
class SharedImage {
public:
    /// Calls `released` each time the compositor has done with it.
    SharedImage(LayerShell& shell, QSize pixels, std::function<void()> released);
    SharedImage(const SharedImage&) = delete;
    SharedImage& operator=(const SharedImage&) = delete;
    ~SharedImage();

    /// Null where there was no memory for it.
    [[nodiscard]] QImage& image() { return image_; }
    /// Whether the compositor reads it; it must not be painted on then.
    [[nodiscard]] bool busy() const { return busy_; }
    /// Has the surface show it from the next commit on.
    void attachTo(wl_proxy* surface);

private:
    std::function<void()> released_;
    QImage image_;
    BufferPointer buffer_;
    bool busy_ = false;
};

} // namespace quillon
