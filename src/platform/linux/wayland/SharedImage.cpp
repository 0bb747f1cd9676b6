#include "platform/linux/wayland/SharedImage.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <utility>

namespace quillon {
namespace {

constexpr int pixelSize = 4;

/// A file in memory of this many bytes, which nobody can shorten; -1 when that fails.
int makeFile(qsizetype size) {
    const int file = ::memfd_create("quillon-banner", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    if (file < 0) return -1;
    if (::ftruncate(file, size) == 0 && ::fcntl(file, F_ADD_SEALS, F_SEAL_SHRINK) == 0) return file;
    ::close(file);
    return -1;
}

} // namespace

SharedImage::SharedImage(LayerShell& shell, QSize pixels, std::function<void()> released)
    : released_{std::move(released)} {
    const auto size = static_cast<std::size_t>(pixels.width()) *
                      static_cast<std::size_t>(pixels.height()) * pixelSize;
    const int file = makeFile(static_cast<qsizetype>(size));
    if (file < 0) return;
    void* const bytes = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    if (bytes != MAP_FAILED) {
        image_ = QImage{static_cast<uchar*>(bytes), pixels.width(), pixels.height(),
                        QImage::Format_ARGB32_Premultiplied};
        buffer_ = shell.makeBuffer(file, pixels.width(), pixels.height());
        static constexpr wl_buffer_listener listener{.release = [](void* self, wl_buffer*) {
            static_cast<SharedImage*>(self)->busy_ = false;
            static_cast<SharedImage*>(self)->released_();
        }};
        listenTo(buffer_.get(), listener, this);
    }
    ::close(file);
}

SharedImage::~SharedImage() {
    if (!image_.isNull()) ::munmap(image_.bits(), static_cast<std::size_t>(image_.sizeInBytes()));
}

void SharedImage::attachTo(wl_proxy* surface) {
    busy_ = true;
    request(surface, WL_SURFACE_ATTACH, buffer_.get(), 0, 0);
    request(surface, WL_SURFACE_DAMAGE_BUFFER, 0, 0, image_.width(), image_.height());
}

} // namespace quillon
