#pragma once

#include <gio/gio.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace quillon {

struct GlibUnref {
    void operator()(gpointer object) const { g_object_unref(object); }
};

/// A reference to an object of GLib's object system.
template <typename T>
using GlibPointer = std::unique_ptr<T, GlibUnref>;

/// Runs asynchronous operations of GLib one after another on the thread that made it, each with a
/// time limit of its own, until another thread stops them all.
class GlibSteps {
public:
    /// Begins an operation; the three arguments are to be passed on to it.
    using Start = std::function<void(GCancellable*, GAsyncReadyCallback, gpointer)>;

    GlibSteps();
    GlibSteps(const GlibSteps&) = delete;
    GlibSteps& operator=(const GlibSteps&) = delete;
    ~GlibSteps();

    /// Waits until the operation has called back, and gives what its finish function wants; null
    /// when it took longer than the limit or the steps were stopped. No limit: waits for ever.
    GlibPointer<GAsyncResult> await(std::optional<std::chrono::milliseconds> limit,
                                    const Start& start);

    /// Lets objects that were released finish their cleaning up, which GLib puts off to the context
    /// that they were made in.
    void settle();

    /// Cancels what is running and everything that comes. Thread-safe.
    void stop();

private:
    struct Answer;
    void iterate(const Answer& answer, std::optional<std::chrono::milliseconds> limit,
                 bool evenWhenStopped);

    GMainContext* context_;
    std::atomic<bool> stopping_ = false;
};

} // namespace quillon
