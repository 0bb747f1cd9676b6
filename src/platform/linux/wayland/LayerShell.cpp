#include "platform/linux/wayland/LayerShell.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <filesystem>

namespace quillon {
namespace {

/// The lowest version that this program can use, and the highest that it knows.
struct Wanted {
    const wl_interface* interface;
    std::uint32_t least;
    std::uint32_t most;
};
constexpr std::array<Wanted, 5> wanted{{{&wl_compositor_interface, 4, 4},
                                        {&wl_shm_interface, 1, 1},
                                        {&layerShell::interface, 1, 4},
                                        {&viewporter::interface, 1, 1},
                                        {&fractionalScaleManager::interface, 1, 1}}};
constexpr std::uint32_t outputVersion = 2; // tells its scale

/// The socket of the compositor; empty when there is none.
std::filesystem::path compositorSocket() {
    const std::filesystem::path display{qgetenv("WAYLAND_DISPLAY").toStdString()};
    if (display.empty() || display.is_absolute()) return display;
    const std::filesystem::path folder{qgetenv("XDG_RUNTIME_DIR").toStdString()};
    return folder.empty() ? folder : folder / display;
}

/// Connects without waiting for a compositor that accepts nothing; -1 when that fails.
int connectTo(const std::filesystem::path& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.empty() || path.native().size() >= sizeof address.sun_path) return -1;
    std::memcpy(address.sun_path, path.c_str(), path.native().size());
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
        return socket;
    ::close(socket);
    return -1;
}

template <typename Object>
Object* as(wl_proxy* proxy) {
    return reinterpret_cast<Object*>(proxy); // as libwayland's own functions do
}

} // namespace

std::unique_ptr<LayerShell> LayerShell::open() {
    const int socket = connectTo(compositorSocket());
    if (socket < 0) return nullptr;
    wl_display* const display = wl_display_connect_to_fd(socket); // which closes it
    return display ? std::unique_ptr<LayerShell>{new LayerShell{display}} : nullptr;
}

LayerShell::LayerShell(wl_display* display)
    : display_{display},
      registry_{wl_display_get_registry(display)},
      asked_{wl_display_sync(display)} {
    static constexpr wl_registry_listener offers{
        .global =
            [](void* self, wl_registry*, std::uint32_t name, const char* interface,
               std::uint32_t version) {
                static_cast<LayerShell*>(self)->add(name, interface, version);
            },
        .global_remove = [](void* self, wl_registry*,
                            std::uint32_t name) { static_cast<LayerShell*>(self)->remove(name); }};
    static constexpr wl_callback_listener answer{
        .done = [](void* self, wl_callback* asked, std::uint32_t) {
            wl_callback_destroy(asked);
            static_cast<LayerShell*>(self)->asked_ = nullptr;
        }};
    wl_registry_add_listener(registry_, &offers, this);
    wl_callback_add_listener(asked_, &answer, this);
    flush();
}

LayerShell::~LayerShell() {
    notifier_.reset();
    for (const auto& screen : screens_)
        wl_output_destroy(screen->output);
    for (wl_proxy* const global : globals_) {
        if (global) wl_proxy_destroy(global);
    }
    if (asked_) wl_callback_destroy(asked_);
    wl_registry_destroy(registry_);
    wl_display_disconnect(display_);
}

void LayerShell::followEvents() {
    notifier_ =
        std::make_unique<QSocketNotifier>(wl_display_get_fd(display_), QSocketNotifier::Read);
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
        pollfd socket{.fd = wl_display_get_fd(display_), .events = POLLIN, .revents = 0};
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

wl_surface* LayerShell::makeSurface() {
    auto* const maker = as<wl_compositor>(globals_[compositor]);
    wl_surface* const surface = wl_compositor_create_surface(maker);
    wl_region* const nothing = wl_compositor_create_region(maker);
    wl_surface_set_input_region(surface, nothing);
    wl_region_destroy(nothing);
    return surface;
}

layerSurface::Pointer LayerShell::makeLayer(wl_surface* surface) const {
    wl_output* const focused = nullptr;
    return layerSurface::Pointer{requestNew(layerSurface::interface, globals_[shell],
                                            layerShell::getLayerSurface, surface, focused,
                                            layerShell::overlay, "quillon-banner")};
}

viewport::Pointer LayerShell::makeViewport(wl_surface* surface) const {
    if (!scalesByFractions()) return {};
    return viewport::Pointer{
        requestNew(viewport::interface, globals_[viewports], viewporter::getViewport, surface)};
}

fractionalScale::Pointer LayerShell::makeFractionalScale(wl_surface* surface) const {
    if (!scalesByFractions()) return {};
    return fractionalScale::Pointer{
        requestNew(fractionalScale::interface, globals_[fractionalScales],
                   fractionalScaleManager::getFractionalScale, surface)};
}

wl_buffer* LayerShell::makeBuffer(int file, int width, int height) const {
    constexpr int pixel = 4;
    wl_shm_pool* const pool =
        wl_shm_create_pool(as<wl_shm>(globals_[memory]), file, width * height * pixel);
    wl_buffer* const buffer =
        wl_shm_pool_create_buffer(pool, 0, width, height, width * pixel, WL_SHM_FORMAT_ARGB8888);
    wl_shm_pool_destroy(pool);
    return buffer;
}

int LayerShell::scaleOf(const wl_output* output) const {
    int scale = 1;
    for (const auto& screen : screens_) {
        if (screen->output == output) return screen->scale;
        scale = std::max(scale, screen->scale);
    }
    return scale;
}

void LayerShell::flush() {
    // A compositor that has not read for so long that the socket is full hangs. Going on would fill
    // libwayland's own memory too, which it takes for the end.
    if (wl_display_flush(display_) < 0) end();
}

void LayerShell::add(std::uint32_t name, std::string_view interface, std::uint32_t version) {
    if (interface == wl_output_interface.name) {
        wl_proxy* const output = bind(name, wl_output_interface, std::min(version, outputVersion));
        screens_.push_back(std::make_unique<Screen>(Screen{name, as<wl_output>(output)}));
        return listenTo(*screens_.back());
    }
    for (std::size_t i = 0; i < globalCount; ++i) {
        const auto [known, least, most] = wanted[i];
        if (interface != known->name || version < least || globals_[i]) continue;
        globals_[i] = bind(name, *known, std::min(version, most));
    }
}

void LayerShell::remove(std::uint32_t name) {
    std::erase_if(screens_, [name](const auto& screen) {
        if (screen->name != name) return false;
        wl_output_destroy(screen->output);
        return true;
    });
}

wl_proxy* LayerShell::bind(std::uint32_t name, const wl_interface& interface,
                           std::uint32_t version) const {
    return static_cast<wl_proxy*>(wl_registry_bind(registry_, name, &interface, version));
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
    wl_output_add_listener(screen.output, &listener, &screen);
}

void LayerShell::takeEvents() {
    while (wl_display_prepare_read(display_) != 0) {
        if (wl_display_dispatch_pending(display_) < 0) return end();
    }
    // Takes what has come, and does not wait.
    if (wl_display_read_events(display_) < 0 || wl_display_dispatch_pending(display_) < 0)
        return end();
    flush();
}

void LayerShell::end() {
    alive_ = false;
    if (notifier_) notifier_->setEnabled(false);
}

} // namespace quillon
