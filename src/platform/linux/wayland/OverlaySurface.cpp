#include "platform/linux/wayland/OverlaySurface.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillon {
namespace {

/// One that shows, one to paint on, and one for a compositor that is late.
constexpr std::size_t mostImages = 3;

/// No screen has more pixels to a device-independent one; pictures for a compositor that says so
/// would take all memory.
constexpr double largestScale = 16;

layerSurface::Anchor anchorAt(Overlay::Edge edge) {
    switch (edge) {
    case Overlay::Edge::top:
        return layerSurface::top;
    case Overlay::Edge::none:
        return layerSurface::nowhere;
    case Overlay::Edge::bottom:
        return layerSurface::bottom;
    }
    return layerSurface::nowhere;
}

} // namespace

OverlaySurface::OverlaySurface(LayerShell& shell, Overlay::Picture picture, double opacity,
                               std::function<void()> drawn)
    : shell_{shell},
      picture_{std::move(picture)},
      opacity_{opacity},
      drawn_{std::move(drawn)},
      scale_{std::min<double>(shell.scaleOf(nullptr), largestScale)},
      surface_{shell.makeSurface()},
      viewport_{shell.makeViewport(surface_.get())},
      fractions_{shell.makeFractionalScale(surface_.get())},
      layer_{shell.makeLayer(surface_.get())} {
    listen();
    place();
}

void OverlaySurface::listen() {
    static constexpr layerSurface::Listener layer{
        .configure = [](void* self, wl_proxy*, std::uint32_t serial, std::uint32_t,
                        std::uint32_t) { static_cast<OverlaySurface*>(self)->configure(serial); },
        .closed = [](void* self, wl_proxy*) { static_cast<OverlaySurface*>(self)->close(); }};
    static constexpr fractionalScale::Listener fractions{
        .preferred = [](void* self, wl_proxy*, std::uint32_t parts) {
            static_cast<OverlaySurface*>(self)->setScale(parts / fractionalScale::parts);
        }};
    static constexpr auto surface = [] {
        wl_surface_listener all{};
        all.enter = [](void* data, wl_surface*, wl_output* screen) {
            auto* const self = static_cast<OverlaySurface*>(data);
            if (!self->fractions_)
                self->setScale(self->shell_.scaleOf(reinterpret_cast<wl_proxy*>(screen)));
        };
        all.leave = [](void*, wl_surface*, wl_output*) {};
        return all;
    }();
    listenTo(surface_.get(), surface, this);
    listenTo(layer_.get(), layer, this);
    if (fractions_) listenTo(fractions_.get(), fractions, this);
}

void OverlaySurface::place() {
    wl_proxy* const layer = layer_.get();
    request(layer, layerSurface::setSize, picture_.size.width(), picture_.size.height());
    request(layer, layerSurface::setAnchor, anchorAt(picture_.edge));
    const int distance = picture_.distance;
    request(layer, layerSurface::setMargin, distance, 0, distance, 0);
    // 0 has it lie beside the desktop's bars, not over them; and it never gets the keyboard.
    request(layer, layerSurface::setExclusiveZone, 0);
    request(layer, layerSurface::setKeyboardInteractivity, 0);
    request(surface_.get(), WL_SURFACE_COMMIT);
    shell_.flush();
}

void OverlaySurface::configure(std::uint32_t serial) {
    request(layer_.get(), layerSurface::acknowledge, serial);
    placed_ = true;
    update();
}

void OverlaySurface::setScale(double scale) {
    if (scale == scale_ || !(scale > 0) || scale > largestScale) return;
    scale_ = scale;
    painted_ = {};
    update();
}

void OverlaySurface::setOpacity(double opacity) {
    if (opacity == opacity_) return;
    opacity_ = opacity;
    update();
}

void OverlaySurface::update() {
    outdated_ = true;
    if (!placed_ || frame_ || !layer_) return;
    if (SharedImage* const target = freeImage()) draw(*target);
}

void OverlaySurface::draw(SharedImage& target) {
    outdated_ = false;
    paint(target.image());
    wl_proxy* const surface = surface_.get();
    target.attachTo(surface);
    if (viewport_) {
        request(viewport_.get(), viewport::setDestination, picture_.size.width(),
                picture_.size.height());
    } else {
        request(surface, WL_SURFACE_SET_BUFFER_SCALE, static_cast<int>(scale_));
    }
    static constexpr wl_callback_listener listener{
        .done = [](void* data, wl_callback*, std::uint32_t) {
            auto* const self = static_cast<OverlaySurface*>(data);
            self->frame_.reset();
            if (self->outdated_) self->update();
        }};
    frame_.reset(requestNew(coreInterface("wl_callback_interface"), surface, WL_SURFACE_FRAME));
    listenTo(frame_.get(), listener, this);
    request(surface, WL_SURFACE_COMMIT);
    shell_.flush();
    shown_ = true;
    drawn_();
}

void OverlaySurface::paint(QImage& target) {
    if (painted_.isNull()) painted_ = picture_.paint(scale_);
    target.fill(Qt::transparent);
    QPainter painter{&target};
    painter.setOpacity(opacity_);
    painter.drawImage(target.rect(), painted_);
}

QSize OverlaySurface::pixels() const {
    const auto scaled = [this](int length) {
        return static_cast<int>(std::lround(length * scale_));
    };
    return {scaled(picture_.size.width()), scaled(picture_.size.height())};
}

SharedImage* OverlaySurface::freeImage() {
    std::erase_if(images_, [this](const auto& image) {
        return !image->busy() && image->image().size() != pixels();
    });
    const auto free =
        std::ranges::find_if(images_, [](const auto& image) { return !image->busy(); });
    if (free != images_.end()) return free->get();
    if (images_.size() == mostImages) return nullptr;
    auto image = std::make_unique<SharedImage>(shell_, pixels(), [this] {
        if (outdated_) update();
    });
    if (image->image().isNull()) return nullptr;
    return images_.emplace_back(std::move(image)).get();
}

void OverlaySurface::close() {
    // As when the screen has gone.
    frame_.reset();
    layer_.reset();
}

} // namespace quillon
