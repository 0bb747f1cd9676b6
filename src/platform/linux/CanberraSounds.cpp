#include "platform/linux/CanberraSounds.h"

#include <canberra.h>
#include <dlfcn.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

namespace quillon {

namespace {

/// How long quitting waits for the sound server at most.
constexpr std::chrono::milliseconds closingLimit{200};

/// Names of the freedesktop sound naming specification. A theme without "message-sent-instant" is
/// searched for "message-sent" and "message".
const char* eventOf(Sound sound) {
    return sound == Sound::pop ? "message-sent-instant" : "dialog-error";
}

/// An error handler in ALSA's form.
void ignoreError(const char* /*file*/, int /*line*/, const char* /*function*/, int /*error*/,
                 const char* /*format*/, ...) {}

/// Without a sound server ALSA is tried, which complains on standard error where there is no sound
/// card either. It is loaded once a context is open.
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
    if (ca_context_create(&context) != CA_SUCCESS) return nullptr;
    ca_context_change_props(context, CA_PROP_APPLICATION_NAME, "Quillon", CA_PROP_MEDIA_ROLE,
                            "event", CA_PROP_CANBERRA_CACHE_CONTROL, "permanent", nullptr);
    ca_context_open(context);
    silenceAlsa();
    return context;
}

} // namespace

/// The thread and what it is to play next. A sound that comes while the server is still being
/// looked for takes the place of the one before it.
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

    /// A thread that hangs in the sound server is left behind.
    void close() {
        std::unique_lock lock{mutex_};
        closing_ = true;
        changed_.notify_all();
        changed_.wait_for(lock, closingLimit, [this] { return !running_; });
    }

private:
    void run() {
        ca_context* context = connect();
        std::unique_lock lock{mutex_};
        for (;;) {
            changed_.wait(lock, [this] { return closing_ || next_; });
            if (closing_) break;
            const char* event = eventOf(*next_);
            next_.reset();
            lock.unlock();
            if (context) ca_context_play(context, 0, CA_PROP_EVENT_ID, event, nullptr);
            lock.lock();
        }
        lock.unlock();
        if (context) ca_context_destroy(context);
        lock.lock();
        running_ = false;
        changed_.notify_all();
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    std::optional<Sound> next_;
    bool running_ = false;
    bool closing_ = false;
};

CanberraSounds::CanberraSounds() : player_{std::make_shared<Player>()} {}

CanberraSounds::~CanberraSounds() {
    player_->close();
}

void CanberraSounds::play(Sound sound) {
    player_->play(sound);
}

} // namespace quillon
