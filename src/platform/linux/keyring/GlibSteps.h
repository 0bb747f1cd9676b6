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

/// Runs asynchronous operations of GLib one after another on the thread that made it, each up to
/// a deadline, until another thread stops them all.
class GlibSteps {
public:
    using Time = std::chrono::steady_clock::time_point;
    /// Begins an operation; the three arguments are to be passed on to it.
    using Start = std::function<void(GCancellable*, GAsyncReadyCallback, gpointer)>;

    GlibSteps();
    GlibSteps(const GlibSteps&) = delete;
    GlibSteps& operator=(const GlibSteps&) = delete;
    ~GlibSteps();

    /// Waits until the operation has called back, and gives what its finish function wants; null
    /// when the deadline passed or the steps were stopped; past a deadline nothing is begun. No
    /// deadline: waits for ever.
    GlibPointer<GAsyncResult> await(std::optional<Time> deadline, const Start& start);

    /// Lets objects that were released finish their cleaning up, which GLib puts off to the context
    /// that they were made in.
    void settle();

    /// Cancels what is running and everything that comes. Thread-safe.
    void stop();

private:
    struct Answer;
    void iterate(const Answer& answer, std::optional<Time> deadline, bool evenWhenStopped);

    GMainContext* context_;
    std::atomic<bool> stopping_ = false;
};

} // namespace quillon
