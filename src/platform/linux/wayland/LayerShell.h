#pragma once

#include "platform/linux/wayland/OverlayProtocols.h"
#include "platform/linux/wayland/WaylandConnection.h"

#include <QSocketNotifier>

#include <wayland-client-protocol.h>

#include <array>
#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace quillon {

using SurfacePointer = WaylandPointer<WL_SURFACE_DESTROY>;
using BufferPointer = WaylandPointer<WL_BUFFER_DESTROY>;

/// The main thread's connection to a Wayland compositor, beside that of Qt, and what the compositor
/// offers for surfaces over all windows. Nothing waits for the compositor, save where that is said:
/// one that dies, hangs or refuses ends the connection and nothing else.
class LayerShell {
public:
    /// Connects to the compositor that $WAYLAND_DISPLAY names, else to "wayland-0", and asks what
    /// it offers; null when none listens there.
    [[nodiscard]] static std::unique_ptr<LayerShell> open();

    LayerShell(const LayerShell&) = delete;
    LayerShell& operator=(const LayerShell&) = delete;
    /// After everything that was made here.
    ~LayerShell() = default;

    /// Has the event loop take what the compositor sends. To be called once, after the application
    /// object has been made.
    void followEvents();

    /// Waits until the compositor has told what it offers, and tells whether it has. Returns at
    /// once when that is known already.
    bool waitForOffers(std::chrono::milliseconds patience);
    /// Whether surfaces over all windows can be made.
    [[nodiscard]] bool usable() const;

    /// A surface that lets the mouse through.
    [[nodiscard]] SurfacePointer makeSurface() const;
    /// Makes it a surface over all windows, on the screen with the focus.
    [[nodiscard]] layerSurface::Pointer makeLayer(wl_proxy* surface) const;
    /// Both are null where the compositor scales by whole numbers only.
    [[nodiscard]] viewport::Pointer makeViewport(wl_proxy* surface) const;
    [[nodiscard]] fractionalScale::Pointer makeFractionalScale(wl_proxy* surface) const;
    /// The buffer of a file in memory of this size in pixels of four bytes, of which it makes a
    /// duplicate.
    [[nodiscard]] BufferPointer makeBuffer(int file, int width, int height) const;

    /// The whole-numbered scale of a screen; without one, the largest of all screens.
    [[nodiscard]] int scaleOf(const wl_proxy* screen) const;

    /// Sends what has been requested.
    void flush();

private:
    /// What is used of the compositor's offers. The last two are only for crispness.
    enum Global { compositor, memory, shell, viewports, fractionalScales };
    static constexpr std::size_t globalCount = 5;

    struct Screen {
        std::uint32_t name;
        ProxyPointer output;
        int scale = 1;
    };

    explicit LayerShell(std::unique_ptr<WaylandConnection> connection);

    [[nodiscard]] bool scalesByFractions() const;
    void add(std::uint32_t name, const std::string& interface, std::uint32_t version);
    void remove(std::uint32_t name);
    [[nodiscard]] ProxyPointer bind(std::uint32_t name, const wl_interface& interface,
                                    std::uint32_t version) const;
    static void listenTo(Screen& screen);
    void takeEvents();
    void end();

    std::unique_ptr<WaylandConnection> connection_; ///< outlives all objects on it
    ProxyPointer registry_;
    ProxyPointer asked_; ///< null when everything offered is known
    std::array<ProxyPointer, globalCount> globals_;
    std::vector<std::unique_ptr<Screen>> screens_; // whose addresses libwayland keeps
    bool alive_ = true;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace quillon
