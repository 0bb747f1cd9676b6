#include "platform/linux/wayland/LayerShell.h"

#include <poll.h>

#include <algorithm>
#include <utility>

namespace quillon {
namespace {

/// The lowest version that this program can use, and the highest that it knows.
struct Wanted {
    const char* interface;
    const wl_interface* extension; ///< null for what the core protocol has
    std::uint32_t least;
    std::uint32_t most;
};
constexpr std::array<Wanted, 5> wanted{
    {{"wl_compositor", nullptr, 4, 4},
     {"wl_shm", nullptr, 1, 1},
     {"zwlr_layer_shell_v1", &layerShell::interface, 1, 4},
     {"wp_viewporter", &viewporter::interface, 1, 1},
     {"wp_fractional_scale_manager_v1", &fractionalScaleManager::interface, 1, 1}}};
constexpr const char* output = "wl_output";
constexpr std::uint32_t outputVersion = 2; // tells its scale

/// The interface of the core protocol that is called so there, as in "wl_output".
const wl_interface& core(const std::string& name) {
    return coreInterface((name + "_interface").c_str());
}

} // namespace

std::unique_ptr<LayerShell> LayerShell::open() {
    auto connection = WaylandConnection::open();
    return connection ? std::unique_ptr<LayerShell>{new LayerShell{std::move(connection)}}
                      : nullptr;
}

LayerShell::LayerShell(std::unique_ptr<WaylandConnection> connection)
    : connection_{std::move(connection)},
      registry_{requestNew(core("wl_registry"), connection_->display(), WL_DISPLAY_GET_REGISTRY)},
      asked_{requestNew(core("wl_callback"), connection_->display(), WL_DISPLAY_SYNC)} {
    static constexpr wl_registry_listener offers{
        .global =
            [](void* self, wl_registry*, std::uint32_t name, const char* interface,
               std::uint32_t version) {
                static_cast<LayerShell*>(self)->add(name, interface, version);
            },
        .global_remove = [](void* self, wl_registry*,
                            std::uint32_t name) { static_cast<LayerShell*>(self)->remove(name); }};
    static constexpr wl_callback_listener answer{
        .done = [](void* self, wl_callback*, std::uint32_t) {
            static_cast<LayerShell*>(self)->asked_.reset();
        }};
    quillon::listenTo(registry_.get(), offers, this);
    quillon::listenTo(asked_.get(), answer, this);
    flush();
}

void LayerShell::followEvents() {
    notifier_ = std::make_unique<QSocketNotifier>(connection_->descriptor(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [this] { takeEvents(); });
    if (!alive_) end();
}

bool LayerShell::waitForOffers(std::chrono::milliseconds patience) {
    using Clock = std::chrono::steady_clock;
    const auto deadline = Clock::now() + patience;
    while (alive_ && asked_) {
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
        pollfd socket{.fd = connection_->descriptor(), .events = POLLIN, .revents = 0};
        if (left <= 0 || ::poll(&socket, 1, static_cast<int>(left)) == 0) return false;
        takeEvents();
    }
    return alive_;
}

bool LayerShell::usable() const {
    return alive_ && globals_[compositor] && globals_[memory] && globals_[shell];
}

bool LayerShell::scalesByFractions() const {
    return globals_[viewports] && globals_[fractionalScales];
}

SurfacePointer LayerShell::makeSurface() const {
    wl_proxy* const maker = globals_[compositor].get();
    SurfacePointer surface{requestNew(core("wl_surface"), maker, WL_COMPOSITOR_CREATE_SURFACE)};
    const WaylandPointer<WL_REGION_DESTROY> nothing{
        requestNew(core("wl_region"), maker, WL_COMPOSITOR_CREATE_REGION)};
    request(surface.get(), WL_SURFACE_SET_INPUT_REGION, nothing.get());
    return surface;
}

layerSurface::Pointer LayerShell::makeLayer(wl_proxy* surface) const {
    wl_proxy* const focused = nullptr;
    return layerSurface::Pointer{requestNew(layerSurface::interface, globals_[shell].get(),
                                            layerShell::getLayerSurface, surface, focused,
                                            layerShell::overlay, "quillon-banner")};
}

viewport::Pointer LayerShell::makeViewport(wl_proxy* surface) const {
    if (!scalesByFractions()) return {};
    return viewport::Pointer{requestNew(viewport::interface, globals_[viewports].get(),
                                        viewporter::getViewport, surface)};
}

fractionalScale::Pointer LayerShell::makeFractionalScale(wl_proxy* surface) const {
    if (!scalesByFractions()) return {};
    return fractionalScale::Pointer{
        requestNew(fractionalScale::interface, globals_[fractionalScales].get(),
                   fractionalScaleManager::getFractionalScale, surface)};
}

BufferPointer LayerShell::makeBuffer(int file, int width, int height) const {
    constexpr int pixel = 4;
    const WaylandPointer<WL_SHM_POOL_DESTROY> pool{
        requestNew(core("wl_shm_pool"), globals_[memory].get(), WL_SHM_CREATE_POOL, file,
                   width * height * pixel)};
    return BufferPointer{requestNew(core("wl_buffer"), pool.get(), WL_SHM_POOL_CREATE_BUFFER, 0,
                                    width, height, width * pixel, WL_SHM_FORMAT_ARGB8888)};
}

int LayerShell::scaleOf(const wl_proxy* output) const {
    int scale = 1;
    for (const auto& screen : screens_) {
        if (screen->output.get() == output) return screen->scale;
        scale = std::max(scale, screen->scale);
    }
    return scale;
}

void LayerShell::flush() {
    // A compositor that has not read for so long that the socket is full hangs. Going on would fill
    // libwayland's own memory too, which it takes for the end.
    if (!connection_->flush()) end();
}

void LayerShell::add(std::uint32_t name, const std::string& interface, std::uint32_t version) {
    if (interface == output) {
        screens_.push_back(std::make_unique<Screen>(
            Screen{name, bind(name, core(output), std::min(version, outputVersion))}));
        return listenTo(*screens_.back());
    }
    for (std::size_t i = 0; i < globalCount; ++i) {
        const auto& [known, extension, least, most] = wanted[i];
        if (interface != known || version < least || globals_[i]) continue;
        globals_[i] = bind(name, extension ? *extension : core(known), std::min(version, most));
    }
}

void LayerShell::remove(std::uint32_t name) {
    std::erase_if(screens_, [name](const auto& screen) { return screen->name == name; });
}

ProxyPointer LayerShell::bind(std::uint32_t name, const wl_interface& interface,
                              std::uint32_t version) const {
    return ProxyPointer{wl_proxy_marshal_flags(registry_.get(), WL_REGISTRY_BIND, &interface,
                                               version, 0, name, interface.name, version, nullptr)};
}

void LayerShell::listenTo(Screen& screen) {
    static constexpr auto listener = [] {
        wl_output_listener all{};
        all.geometry = [](void*, wl_output*, int, int, int, int, int, const char*, const char*,
                          int) {};
        all.mode = [](void*, wl_output*, std::uint32_t, int, int, int) {};
        all.done = [](void*, wl_output*) {};
        all.scale = [](void* data, wl_output*, int scale) {
            static_cast<Screen*>(data)->scale = scale;
        };
        return all;
    }();
    quillon::listenTo(screen.output.get(), listener, &screen);
}

void LayerShell::takeEvents() {
    connection_->dispatch();
    connection_->alive() ? flush() : end();
}

void LayerShell::end() {
    alive_ = false;
    if (notifier_) notifier_->setEnabled(false);
}

} // namespace quillon
