#pragma once

#include "platform/linux/files/Descriptor.h"
#include "platform/linux/pasteboard/Bell.h"
#include "platform/linux/wayland/DataControlProtocol.h"

#include <QTemporaryDir>

#include <wayland-server-core.h>
#include <wayland-server-protocol.h>

#include <atomic>
#include <csignal>
#include <list>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace quillon::test {

/// A compositor with nothing but a seat and a clipboard, which programs may read by the protocols
/// given, in a thread of its own.
class WaylandServer {
public:
    /// What an owner does when it has given its content.
    enum class Then { close, hold, die };

    explicit WaylandServer(std::vector<const DataControlProtocol*> protocols)
        : protocols_{std::move(protocols)} {
        std::signal(SIGPIPE, SIG_IGN); // owners write to readers that have left
        start();
    }
    WaylandServer(const WaylandServer&) = delete;
    WaylandServer& operator=(const WaylandServer&) = delete;
    ~WaylandServer() { stop(); }

    /// What $WAYLAND_DISPLAY would name it.
    [[nodiscard]] const char* display() const { return path_.constData(); }
    /// While it is locked, the compositor hangs.
    [[nodiscard]] std::recursive_mutex& mutex() { return mutex_; }
    /// The formats that owners were asked for.
    [[nodiscard]] std::vector<std::string> asked() {
        const std::lock_guard lock{mutex_};
        return asked_;
    }

    /// Without formats, nothing is copied any more.
    void copy(std::vector<std::string> formats, std::string content, Then then = Then::close) {
        const std::lock_guard lock{mutex_};
        formats_ = std::move(formats);
        content_ = std::move(content);
        then_ = then;
        for (wl_resource* const device : devices_)
            tell(device);
        wl_display_flush_clients(display_);
    }
    /// Adds to what the owner that holds has given; false once its reader has left.
    [[nodiscard]] bool drip() const { return writeAll(held_.number(), "."); }
    /// Ends it.
    void release() { held_.close(); }
    /// Nobody is told anything until he asks anew.
    void finishDevices() {
        const std::lock_guard lock{mutex_};
        for (wl_resource* const device : std::exchange(devices_, {}))
            wl_resource_post_event(device, 2);
        wl_display_flush_clients(display_);
    }

    void start() {
        display_ = wl_display_create();
        const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
        qputenv("XDG_RUNTIME_DIR", folder_.path().toUtf8());
        wl_display_add_socket(display_, "socket");
        qputenv("XDG_RUNTIME_DIR", before);
        const auto bindSeat = [](wl_client* client, void*, std::uint32_t version,
                                 std::uint32_t id) {
            wl_resource_create(client, &wl_seat_interface, int(version), id);
        };
        wl_global_create(display_, &wl_seat_interface, 1, this, bindSeat);
        for (const DataControlProtocol* const protocol : protocols_) {
            wl_global_create(display_, protocol->manager, int(protocol->version),
                             &made_.emplace_back(Made{this, protocol}), bindManager);
        }
        running_ = true;
        loop_ = std::thread{[this] { run(); }};
    }
    void stop() {
        if (!running_.exchange(false)) return;
        bell_.ring();
        loop_.join();
        wl_display_destroy_clients(display_);
        wl_display_destroy(display_);
        formats_.clear();
    }

private:
    /// What all that comes from a manager belongs to.
    struct Made {
        WaylandServer* server;
        const DataControlProtocol* protocol;
    };
    static Made& madeOf(wl_resource* object) {
        return *static_cast<Made*>(wl_resource_get_user_data(object));
    }

    void run() {
        wl_event_loop* const loop = wl_display_get_event_loop(display_);
        while (running_) {
            {
                const std::lock_guard lock{mutex_};
                wl_event_loop_dispatch(loop, 0);
                wl_display_flush_clients(display_);
            }
            bell_.sleep({wl_event_loop_get_fd(loop)}, {});
        }
    }
    /// What is copied, and something that is only marked.
    void tell(wl_resource* device) {
        wl_resource_post_event(device, 1, formats_.empty() ? nullptr : makeOffer(device, formats_));
        wl_resource_post_event(device, 3, makeOffer(device, {"text/marked"}));
    }
    static wl_resource* makeOffer(wl_resource* device, const std::vector<std::string>& formats) {
        using Receive = void (*)(wl_client*, wl_resource*, const char*, std::int32_t);
        using Destroy = void (*)(wl_client*, wl_resource*);
        static constexpr std::pair<Receive, Destroy> requests{
            [](wl_client*, wl_resource* offer, const char* format, std::int32_t into) {
                madeOf(offer).server->give(format, Descriptor{into});
            },
            [](wl_client*, wl_resource* offer) { wl_resource_destroy(offer); }};
        auto& made = madeOf(device);
        wl_resource* const offer =
            wl_resource_create(wl_resource_get_client(device), made.protocol->offer, 1, 0);
        wl_resource_set_implementation(offer, &requests, &made, nullptr);
        wl_resource_post_event(device, 0, offer);
        for (const std::string& format : formats)
            wl_resource_post_event(offer, 0, format.c_str());
        return offer;
    }
    void give(const char* format, Descriptor into) {
        asked_.emplace_back(format);
        std::ignore = writeAll(into.number(), content_);
        if (then_ == Then::hold) {
            held_ = std::move(into);
        } else {
            into.close();
        }
        if (then_ != Then::die) return;
        std::this_thread::sleep_for(std::chrono::milliseconds{20}); // the compositor notices later
        copy({}, {});
    }

    static void bindManager(wl_client* client, void* made, std::uint32_t version,
                            std::uint32_t id) {
        static constexpr std::pair requests{nullptr, &getDevice};
        const auto& interface = *static_cast<Made*>(made)->protocol->manager;
        wl_resource* const manager = wl_resource_create(client, &interface, int(version), id);
        wl_resource_set_implementation(manager, &requests, made, nullptr);
    }
    static void getDevice(wl_client* client, wl_resource* manager, std::uint32_t id,
                          wl_resource* /*seat*/) {
        auto& made = madeOf(manager);
        wl_resource* const device =
            wl_resource_create(client, made.protocol->device, wl_resource_get_version(manager), id);
        wl_resource_set_implementation(device, nullptr, &made, [](wl_resource* gone) {
            std::erase(madeOf(gone).server->devices_, gone);
        });
        made.server->devices_.push_back(device);
        // Some compositors send no first selection where nothing is copied.
        if (!made.server->formats_.empty()) made.server->tell(device);
    }

    std::vector<const DataControlProtocol*> protocols_;
    QTemporaryDir folder_;
    QByteArray path_ = folder_.filePath(QStringLiteral("socket")).toUtf8();
    wl_display* display_ = nullptr;
    std::recursive_mutex mutex_; ///< guards what follows, and the display
    std::list<Made> made_;
    std::vector<wl_resource*> devices_;
    std::vector<std::string> formats_;
    std::string content_;
    Then then_ = Then::close;
    std::vector<std::string> asked_;
    Descriptor held_;
    std::atomic<bool> running_ = false;
    Bell bell_;
    std::thread loop_;
};

} // namespace quillon::test
