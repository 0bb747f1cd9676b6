#include "platform/linux/desktop/CanberraSounds.h"

#include "base/LateLibrary.h"

#include <canberra.h>
#include <dlfcn.h>

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <optional>
#include <thread>

namespace quillon {

namespace {

using Clock = std::chrono::steady_clock;

/// Needed from the first sound on. It depends on six libraries.
constinit const LateLibrary libcanberra{QUILLON_CANBERRA};

QUILLON_LATE(libcanberra, ca_context_change_props);
QUILLON_LATE(libcanberra, ca_context_create);
QUILLON_LATE(libcanberra, ca_context_destroy);
QUILLON_LATE(libcanberra, ca_context_open);
QUILLON_LATE(libcanberra, ca_context_play_full);
QUILLON_LATE(libcanberra, ca_proplist_create);
QUILLON_LATE(libcanberra, ca_proplist_destroy);
QUILLON_LATE(libcanberra, ca_proplist_sets);

/// Quitting waits this long for the connection to the sound server, and again for the end of it.
constexpr std::chrono::milliseconds closingLimit{200};

/// Quitting lets a sound that the server has go on for this long. Both limits together are 2
/// seconds.
constexpr std::chrono::milliseconds soundLimit{1800};

/// The names come from freedesktop.org's list for sound themes. A theme without
/// "message-sent-instant" is searched for "message-sent" and "message".
const char* eventOf(Sound sound) {
    return sound == Sound::pop ? "message-sent-instant" : "dialog-error";
}

/// An error handler with the signature that ALSA wants.
void ignoreError(const char* /*file*/, int /*line*/, const char* /*function*/, int /*error*/,
                 const char* /*format*/, ...) {}

/// Without a sound server libcanberra tries ALSA, which complains on standard error if there is no
/// sound card either. ALSA is loaded once a context is open.
void silenceAlsa() {
    using SetHandler = int (*)(decltype(&ignoreError));
    void* alsa = dlopen("libasound.so.2", RTLD_LAZY | RTLD_NOLOAD);
    if (!alsa) return;
    if (auto* set = reinterpret_cast<SetHandler>(dlsym(alsa, "snd_lib_error_set_handler")))
        set(&ignoreError);
    dlclose(alsa);
}

ca_context* connect() {
    ca_context* context = nullptr;
    if (!libcanberra.load() || ca_context_create(&context) != CA_SUCCESS) return nullptr;
    ca_context_change_props(context, CA_PROP_APPLICATION_NAME, "Quillon", CA_PROP_MEDIA_ROLE,
                            "event", CA_PROP_CANBERRA_CACHE_CONTROL, "permanent", nullptr);
    ca_context_open(context);
    silenceAlsa();
    return context;
}

} // namespace

/// The thread and the sound that it plays next. A sound that is asked for before the server is
/// found replaces the one before it.
class CanberraSounds::Player : public std::enable_shared_from_this<Player> {
public:
    void play(Sound sound) {
        const std::lock_guard lock{mutex_};
        next_ = sound;
        changed_.notify_all();
        if (running_) return;
        running_ = true;
        std::thread{[self = shared_from_this()] { self->run(); }}.detach();
    }

    /// Lets the last sound be played. A thread that hangs in the sound server is left behind.
    void close() {
        std::unique_lock lock{mutex_};
        const auto now = Clock::now();
        closing_ = true;
        end_ = now + soundLimit;
        changed_.notify_all();
        changed_.wait_until(lock, now + closingLimit,
                            [this] { return !running_ || sounding_ > 0; });
        if (sounding_ > 0)
            changed_.wait_until(lock, end_ + closingLimit, [this] { return !running_; });
    }

private:
    void run() {
        ca_context* context = connect();
        std::unique_lock lock{mutex_};
        for (;;) {
            changed_.wait(lock, [this] { return closing_ || next_; });
            if (!next_) break;
            const char* event = eventOf(*next_);
            next_.reset();
            if (!context) continue;
            ++sounding_;
            changed_.notify_all();
            lock.unlock();
            if (!start(context, event)) finished();
            lock.lock();
        }
        changed_.wait_until(lock, end_, [this] { return sounding_ == 0; });
        lock.unlock();
        // This calls back for the sounds that it cuts off.
        if (context) ca_context_destroy(context);
        lock.lock();
        running_ = false;
        changed_.notify_all();
    }

    /// False if the sound is not played; then there is no call back.
    bool start(ca_context* context, const char* event) {
        ca_proplist* properties = nullptr;
        if (ca_proplist_create(&properties) != CA_SUCCESS) return false;
        ca_proplist_sets(properties, CA_PROP_EVENT_ID, event);
        const auto callBack = [](ca_context*, std::uint32_t, int, void* self) {
            static_cast<Player*>(self)->finished();
        };
        const int result = ca_context_play_full(context, 0, properties, callBack, this);
        ca_proplist_destroy(properties);
        return result == CA_SUCCESS;
    }

    void finished() {
        const std::lock_guard lock{mutex_};
        --sounding_;
        changed_.notify_all();
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    std::optional<Sound> next_;
    int sounding_ = 0; ///< sounds that the server has or is being given
    bool running_ = false;
    bool closing_ = false;
    Clock::time_point end_; ///< once closing: when sounds are cut off
};

CanberraSounds::CanberraSounds() : player_{std::make_shared<Player>()} {}

CanberraSounds::~CanberraSounds() {
    player_->close();
}

void CanberraSounds::play(Sound sound) {
    player_->play(sound);
}

} // namespace quillon
