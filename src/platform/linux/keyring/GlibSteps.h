#pragma once

#include "platform/linux/keyring/LibSecret.h"

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

/// Runs GLib's asynchronous operations one after another on the thread that made this object, each
/// up to a deadline, until another thread stops them all.
class GlibSteps {
public:
    using Time = std::chrono::steady_clock::time_point;
    /// Begins an operation, to which it passes these three arguments on.
    using Start = std::function<void(GCancellable*, GAsyncReadyCallback, gpointer)>;

    GlibSteps();
    GlibSteps(const GlibSteps&) = delete;
    GlibSteps& operator=(const GlibSteps&) = delete;
    ~GlibSteps();

    /// Waits until the operation has called back, and returns the result for its finish function.
    /// Null if the deadline has passed, after which nothing is begun, or if the steps were stopped.
    /// Without a deadline it waits for ever.
    GlibPointer<GAsyncResult> await(std::optional<Time> deadline, const Start& start);

    /// Lets released objects finish their clean-up, which GLib defers to the context in which they
    /// were made.
    void settle();

    /// Cancels the present operation and all later ones. Thread-safe.
    void stop();

private:
    struct Answer;
    void iterate(const Answer& answer, std::optional<Time> deadline, bool evenWhenStopped);

    GMainContext* context_;
    std::atomic<bool> stopping_ = false;
};

} // namespace quillon
