#pragma once

#include "platform/linux/files/Descriptor.h"
#include "platform/linux/pasteboard/Bell.h"
#include "platform/linux/wayland/DataControlProtocol.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/un.h>
#include <wayland-server-core.h>
#include <wayland-server-protocol.h>

#include <atomic>
#include <csignal>
#include <functional>
#include <list>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace quillon::test {

/// A compositor with nothing but a seat and a clipboard, which programs may read by the protocols
/// given, in a thread of its own. What is copied has an owner that is as good or bad as a test
/// wants.
class WaylandServer {
public:
    /// Gives the content in a format, in a thread of its own. The content ends with the descriptor.
    using Owner = std::function<void(const std::string& format, Descriptor into)>;

    explicit WaylandServer(std::vector<const DataControlProtocol*> protocols)
        : protocols_{std::move(protocols)} {
        std::signal(SIGPIPE, SIG_IGN); // owners write to readers that have left
        start();
    }
    WaylandServer(const WaylandServer&) = delete;
    WaylandServer& operator=(const WaylandServer&) = delete;
    ~WaylandServer() { stop(); }

    /// What $WAYLAND_DISPLAY would name it.
    [[nodiscard]] const char* display() const { return path_.c_str(); }
    /// How often owners were asked, and how often while one was still at work.
    [[nodiscard]] int requests() const { return requests_; }
    [[nodiscard]] int overlaps() const { return overlaps_; }

    void copy(std::vector<std::string> formats, Owner owner) {
        const std::lock_guard lock{mutex_};
        put({std::move(formats), std::move(owner)});
    }
    /// What the owner's end looks like: its content ends, and then nothing is copied.
    void die(Descriptor into) {
        const std::lock_guard lock{mutex_};
        into.close();
        put({});
    }
    /// The devices are no good any more.
    void finishDevices() {
        const std::lock_guard lock{mutex_};
        for (const auto& [device, protocol] : devices_)
            wl_resource_post_event(device, 2);
        wl_display_flush_clients(display_);
    }
    /// While it holds, requests lie unread.
    [[nodiscard]] std::unique_lock<std::recursive_mutex> hang() { return std::unique_lock{mutex_}; }

    void start() {
        display_ = wl_display_create();
        const Descriptor socket{::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)};
        sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
        path_.copy(address.sun_path, sizeof address.sun_path - 1);
        ::unlink(address.sun_path);
        const auto* const general = reinterpret_cast<const sockaddr*>(&address);
        EXPECT_EQ(::bind(socket.number(), general, sizeof address), 0);
        EXPECT_EQ(::listen(socket.number(), 8), 0);
        wl_display_add_socket_fd(display_, ::dup(socket.number()));
        wl_global_create(display_, &wl_seat_interface, 1, nullptr, bindSeat);
        for (const DataControlProtocol* protocol : protocols_) {
            bindings_.push_back({this, protocol});
            wl_global_create(display_, protocol->manager, int(protocol->version), &bindings_.back(),
                             bindManager);
        }
        stopping_ = false;
        loop_ = std::thread{[this] { run(); }};
    }
    void stop() {
        if (!loop_.joinable()) return;
        stopping_ = true;
        bell_.ring();
        loop_.join();
        ::unlink(display());
        wl_display_destroy_clients(display_);
        wl_display_destroy(display_);
        for (std::thread& owner : owners_)
            owner.join();
        owners_.clear();
        content_ = {};
    }

private:
    struct Content {
        std::vector<std::string> formats;
        Owner owner; ///< none if nothing is copied
    };
    struct Binding {
        WaylandServer* server;
        const DataControlProtocol* protocol;
    };
    struct Offered {
        WaylandServer* server;
        Owner owner;
    };

    void run() {
        wl_event_loop* const loop = wl_display_get_event_loop(display_);
        while (!stopping_) {
            {
                const std::lock_guard lock{mutex_};
                wl_event_loop_dispatch(loop, 0);
                wl_display_flush_clients(display_);
            }
            bell_.sleep({wl_event_loop_get_fd(loop)}, {});
        }
    }
    void put(Content content) {
        content_ = std::move(content);
        for (const auto& [device, protocol] : devices_)
            tell(device, *protocol);
        wl_display_flush_clients(display_);
    }
    /// A first selection only if something is copied, as some compositors do; and always something
    /// that is only marked.
    void tell(wl_resource* device, const DataControlProtocol& protocol) {
        post(device, 3, protocol, {{"text/marked"}, {}});
        post(device, 1, protocol, content_);
    }
    void post(wl_resource* device, std::uint32_t selection, const DataControlProtocol& protocol,
              const Content& content) {
        if (content.formats.empty()) return wl_resource_post_event(device, selection, nullptr);
        static constexpr struct {
            void (*receive)(wl_client*, wl_resource*, const char*, std::int32_t);
            void (*destroy)(wl_client*, wl_resource*);
        } requests{[](wl_client*, wl_resource* offer, const char* format, std::int32_t into) {
                       const auto& offered =
                           *static_cast<Offered*>(wl_resource_get_user_data(offer));
                       offered.server->ask(offered.owner, format, Descriptor{into});
                   },
                   [](wl_client*, wl_resource* offer) { wl_resource_destroy(offer); }};
        offered_.push_back({this, content.owner});
        wl_resource* const offer =
            wl_resource_create(wl_resource_get_client(device), protocol.offer, 1, 0);
        wl_resource_set_implementation(offer, &requests, &offered_.back(), nullptr);
        wl_resource_post_event(device, 0, offer);
        for (const std::string& format : content.formats)
            wl_resource_post_event(offer, 0, format.c_str());
        wl_resource_post_event(device, selection, offer);
    }
    void ask(const Owner& owner, std::string format, Descriptor into) {
        ++requests_;
        owners_.emplace_back(
            [this, owner, format = std::move(format), into = std::move(into)]() mutable {
                if (atWork_++ > 0) ++overlaps_;
                owner(format, std::move(into));
                --atWork_;
            });
    }

    static void bindSeat(wl_client* client, void*, std::uint32_t version, std::uint32_t id) {
        wl_resource_create(client, &wl_seat_interface, int(version), id);
    }
    static void bindManager(wl_client* client, void* data, std::uint32_t version,
                            std::uint32_t id) {
        static constexpr struct {
            void (*createSource)(wl_client*, wl_resource*, std::uint32_t);
            void (*getDevice)(wl_client*, wl_resource*, std::uint32_t, wl_resource*);
        } requests{nullptr, getDevice};
        wl_resource* const manager = wl_resource_create(
            client, static_cast<Binding*>(data)->protocol->manager, int(version), id);
        wl_resource_set_implementation(manager, &requests, data, nullptr);
    }
    static void getDevice(wl_client* client, wl_resource* manager, std::uint32_t id,
                          wl_resource* /*seat*/) {
        auto& [server, protocol] = *static_cast<Binding*>(wl_resource_get_user_data(manager));
        wl_resource* const device =
            wl_resource_create(client, protocol->device, wl_resource_get_version(manager), id);
        wl_resource_set_implementation(device, nullptr, server, [](wl_resource* gone) {
            auto& devices = static_cast<WaylandServer*>(wl_resource_get_user_data(gone))->devices_;
            std::erase_if(devices, [&](const auto& each) { return each.first == gone; });
        });
        server->devices_.emplace_back(device, protocol);
        if (server->content_.owner) server->tell(device, *protocol);
    }

    std::vector<const DataControlProtocol*> protocols_;
    QTemporaryDir folder_;
    std::string path_ = folder_.filePath(QStringLiteral("wayland")).toStdString();
    wl_display* display_ = nullptr;
    std::list<Binding> bindings_;
    std::recursive_mutex mutex_; ///< guards what follows, and the display
    std::list<Offered> offered_;
    std::vector<std::pair<wl_resource*, const DataControlProtocol*>> devices_;
    Content content_;
    std::vector<std::thread> owners_;
    std::atomic<int> requests_ = 0;
    std::atomic<int> atWork_ = 0;
    std::atomic<int> overlaps_ = 0;
    std::atomic<bool> stopping_ = false;
    Bell bell_;
    std::thread loop_;
};

} // namespace quillon::test
