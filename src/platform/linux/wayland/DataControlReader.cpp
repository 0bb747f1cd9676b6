#include "platform/linux/wayland/DataControlReader.h"

#include <wayland-client-protocol.h>

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

/// No owner has this many formats; those behind them count as not offered.
constexpr std::size_t maximumFormats = 4096;

} // namespace

/// Something that was copied.
class DataControlReader::Offer {
public:
    explicit Offer(wl_proxy* proxy) : proxy_{proxy} {}
    Offer(const Offer&) = delete;
    Offer& operator=(const Offer&) = delete;
    ~Offer() {
        wl_proxy_marshal_flags(proxy_, DataControl::destroyOffer, nullptr, 0,
                               WL_MARSHAL_FLAG_DESTROY);
    }

    [[nodiscard]] wl_proxy* proxy() const { return proxy_; }
    [[nodiscard]] const std::vector<std::string>& formats() const { return formats_; }

    void add(const char* format) {
        if (formats_.size() < maximumFormats) formats_.emplace_back(format);
    }

    /// Has the owner write the content into the descriptor.
    void receive(const std::string& format, int into) const {
        wl_proxy_marshal_flags(proxy_, DataControl::receive, nullptr, 0, 0, format.c_str(), into);
    }

private:
    wl_proxy* proxy_;
    std::vector<std::string> formats_;
};

/// The listeners. Each member is the function for one event.
struct DataControlReader::Events {
    static DataControlReader& self(void* data) { return *static_cast<DataControlReader*>(data); }

    struct Registry {
        void (*global)(void*, wl_proxy*, std::uint32_t, const char*, std::uint32_t);
        void (*globalRemove)(void*, wl_proxy*, std::uint32_t);
    };
    static constexpr Registry registry{[](void* data, wl_proxy*, std::uint32_t name,
                                          const char* interface, std::uint32_t version) {
                                           self(data).noteGlobal(interface, {name, version});
                                       },
                                       [](void*, wl_proxy*, std::uint32_t) {}};

    struct Callback {
        void (*done)(void*, wl_proxy*, std::uint32_t);
    };
    static constexpr Callback callback{[](void* data, wl_proxy*, std::uint32_t) {
        // It may sync again.
        if (const auto then = std::exchange(self(data).synced_, {})) then();
    }};

    struct NewOffer {
        void (*offer)(void*, wl_proxy*, const char*);
    };
    static constexpr NewOffer newOffer{
        [](void* data, wl_proxy*, const char* format) { static_cast<Offer*>(data)->add(format); }};

    struct Device {
        void (*dataOffer)(void*, wl_proxy*, wl_proxy*);
        void (*selection)(void*, wl_proxy*, wl_proxy*);
        void (*finished)(void*, wl_proxy*);
        void (*primarySelection)(void*, wl_proxy*, wl_proxy*);
    };
    static constexpr Device device{
        [](void* data, wl_proxy*, wl_proxy* offer) {
            auto& offers = self(data).newOffers_;
            offers.push_back(std::make_unique<Offer>(offer));
            listenTo(offer, newOffer, offers.back().get());
        },
        [](void* data, wl_proxy*, wl_proxy* offer) { self(data).takeSelection(offer); },
        [](void* data, wl_proxy*) { self(data).refused_ = true; },
        // What is marked with the mouse is not what was copied.
        [](void* data, wl_proxy*, wl_proxy* offer) { self(data).takeNewOffer(offer).reset(); }};
};

std::unique_ptr<DataControlReader> DataControlReader::open(const char* display,
                                                           const ReaderHost& host) {
    auto connection = WaylandConnection::open(display);
    if (!connection) return nullptr;
    std::unique_ptr<DataControlReader> reader{new DataControlReader{std::move(connection), host}};
    reader->waitUntil(std::chrono::steady_clock::now() + host.limits.patience, -1,
                      [&] { return reader->ready_; });
    return reader->alive() ? std::move(reader) : nullptr;
}

DataControlReader::DataControlReader(std::unique_ptr<WaylandConnection> connection, ReaderHost host)
    : connection_{std::move(connection)},
      host_{std::move(host)},
      registry_{wl_proxy_marshal_flags(connection_->display(), WL_DISPLAY_GET_REGISTRY,
                                       &coreInterface("wl_registry_interface"), 1, 0, nullptr)} {
    listenTo(registry_.get(), Events::registry, this);
    sync([this] { bindDevice(); });
}

DataControlReader::~DataControlReader() = default;

void DataControlReader::noteGlobal(std::string_view interface, Global global) {
    // Of several seats, the first is the one that people sit at.
    if (interface == "wl_seat" && seatGlobal_.version == 0) seatGlobal_ = global;
    if (interface == extDataControl().manager->name) extGlobal_ = global;
    if (interface == wlrDataControl().manager->name) wlrGlobal_ = global;
}

void DataControlReader::bindDevice() {
    const bool ext = extGlobal_.version != 0;
    const Global global = ext ? extGlobal_ : wlrGlobal_;
    refused_ = global.version == 0 || seatGlobal_.version == 0;
    if (refused_) return;
    protocol_ = ext ? &extDataControl() : &wlrDataControl();
    const std::uint32_t version = std::min(global.version, protocol_->version);
    seat_ = bind(seatGlobal_, &coreInterface("wl_seat_interface"), 1);
    manager_ = bind(global, protocol_->manager, version);
    device_.reset(wl_proxy_marshal_flags(manager_.get(), DataControl::getDataDevice,
                                         protocol_->device, version, 0, nullptr, seat_.get()));
    listenTo(device_.get(), Events::device, this);
    // Where nothing is copied, some compositors send no selection, so it is not waited for.
    sync([this] { ready_ = true; });
}

ProxyPointer DataControlReader::bind(Global global, const wl_interface* interface,
                                     std::uint32_t version) {
    return ProxyPointer{wl_proxy_marshal_flags(registry_.get(), WL_REGISTRY_BIND, interface,
                                               version, 0, global.name, interface->name, version,
                                               nullptr)};
}

/// Calls `then` once the compositor has carried out all requests so far; only the newest is called.
void DataControlReader::sync(std::function<void()> then) {
    synced_ = std::move(then);
    callback_.reset(wl_proxy_marshal_flags(connection_->display(), WL_DISPLAY_SYNC,
                                           &coreInterface("wl_callback_interface"), 1, 0, nullptr));
    listenTo(callback_.get(), Events::callback, this);
}

ClipboardWay DataControlReader::way() const {
    return ready_ ? protocol_->way : ClipboardWay::none;
}

bool DataControlReader::alive() const {
    return !refused_ && connection_->alive();
}

std::unique_ptr<DataControlReader::Offer> DataControlReader::takeNewOffer(wl_proxy* proxy) {
    const auto found = std::find_if(newOffers_.begin(), newOffers_.end(),
                                    [&](const auto& offer) { return offer->proxy() == proxy; });
    if (found == newOffers_.end()) return nullptr;
    std::unique_ptr<Offer> offer = std::move(*found);
    newOffers_.erase(found);
    return offer;
}

void DataControlReader::takeSelection(wl_proxy* offer) {
    selection_ = takeNewOffer(offer);
    // A reading that begins now replaces the sync at the start, if that is still awaited.
    ready_ = true;
    overtaken_ = true;
    silence_ = {};
    late_.reset();
    host_.changed();
}

std::vector<std::string> DataControlReader::formats() {
    if (silent() || !selection_) return {};
    silence_ = {};
    return selection_->formats();
}

/// Owners may answer what they never offered, with anything, so they are not asked for it.
std::optional<QByteArray> DataControlReader::data(const std::string& format) {
    if (silent() || !selection_) return {};
    const auto& offered = selection_->formats();
    if (std::find(offered.begin(), offered.end(), format) == offered.end()) return {};
    Intake intake{host_.limits.size};
    {
        // The content ends when the owner, who has the only other copy, closes it.
        const Descriptor owners = intake.open();
        if (!owners.isOpen()) return {};
        selection_->receive(format, owners.number());
    }
    overtaken_ = false;
    return receive(intake);
}

std::optional<QByteArray> DataControlReader::receive(Intake& intake) {
    auto state = Intake::State::waiting;
    const auto somethingCame = [&] {
        state = intake.take();
        return state != Intake::State::waiting;
    };
    const auto end = std::chrono::steady_clock::now() + host_.limits.transfer;
    while (waitForOwner(intake.descriptor(), somethingCame)) {
        if (state == Intake::State::failed) return {};
        if (state == Intake::State::ended) return finished(intake);
        silence_ = {};
        if (std::chrono::steady_clock::now() >= end) {
            silence_ = host_.limits.patience;
            return {};
        }
    }
    if (silent()) late_ = std::move(intake);
    return {};
}

/// An owner that has died, even halfway, looks like one that has finished; but then the compositor
/// tells that nothing is copied any more.
std::optional<QByteArray> DataControlReader::finished(Intake& intake) {
    QByteArray bytes = intake.bytes();
    if (bytes.isEmpty()) return {};
    bool told = false;
    sync([&told] { told = true; });
    waitUntil(std::chrono::steady_clock::now() + host_.limits.patience, -1,
              [&told] { return told; });
    synced_ = {};
    return overtaken_ || !alive() ? std::nullopt : std::optional{std::move(bytes)};
}

void DataControlReader::handleEvents() {
    connection_->dispatch();
    if (late_ && late_->take() != Intake::State::waiting) noteLateAnswer();
}

/// What a slow owner gave too late, it may give in time when it is asked again.
void DataControlReader::noteLateAnswer() {
    late_.reset();
    silence_ = {};
    host_.changed();
}

void DataControlReader::sleep() {
    connection_->sleep(host_.bell, late_ ? late_->descriptor() : -1, {});
}

template <typename Done>
bool DataControlReader::waitForOwner(int watched, Done done) {
    const auto start = std::chrono::steady_clock::now();
    if (waitUntil(start + host_.limits.patience - silence_, watched,
                  [&] { return overtaken_ || done(); })) {
        if (overtaken_) return false; // what was waited for until now was another owner
        silence_ += std::chrono::steady_clock::now() - start;
        return true;
    }
    if (alive() && !host_.stop.stop_requested()) silence_ = host_.limits.patience;
    return false;
}

template <typename Done>
bool DataControlReader::waitUntil(Bell::Time deadline, int watched, Done done) {
    for (;;) {
        connection_->dispatch();
        if (!alive() || host_.stop.stop_requested()) return false;
        if (done()) return true;
        if (std::chrono::steady_clock::now() >= deadline) return false;
        connection_->sleep(host_.bell, watched, deadline);
    }
}

} // namespace quillon
