#include "platform/linux/keyring/GlibSteps.h"

#include <algorithm>
#include <cstdint>

namespace quillon {

namespace {

/// A cancelled operation that has not called back by then is abandoned: one that waits for a
/// hanging service to close its window never would.
constexpr std::chrono::milliseconds graceAfterCancelling{300};

/// Rounds up, so that the deadline has passed when the time is over.
guint millisecondsUntil(GlibSteps::Time deadline) {
    const auto left = deadline - std::chrono::steady_clock::now();
    const auto rounded = std::chrono::ceil<std::chrono::milliseconds>(left).count();
    return static_cast<guint>(std::max<std::int64_t>(rounded, 0));
}

} // namespace

struct GlibSteps::Answer {
    GlibPointer<GAsyncResult> result;

    /// `share` owns a share of the answer, because the waiting function may have returned already.
    static void arrive(GObject* /*source*/, GAsyncResult* result, gpointer share) {
        const std::unique_ptr<std::shared_ptr<Answer>> answer{
            static_cast<std::shared_ptr<Answer>*>(share)};
        (*answer)->result.reset(G_ASYNC_RESULT(g_object_ref(result)));
    }
};

GlibSteps::GlibSteps() : context_{g_main_context_new()} {
    g_main_context_push_thread_default(context_);
}

GlibSteps::~GlibSteps() {
    g_main_context_pop_thread_default(context_);
    g_main_context_unref(context_);
}

GlibPointer<GAsyncResult> GlibSteps::await(std::optional<Time> deadline, const Start& start) {
    if (stopping_ || (deadline && std::chrono::steady_clock::now() >= *deadline)) return {};
    const auto answer = std::make_shared<Answer>();
    const GlibPointer<GCancellable> cancellable{g_cancellable_new()};
    start(cancellable.get(), &Answer::arrive, new std::shared_ptr<Answer>{answer});
    iterate(*answer, deadline, false);
    if (!answer->result) {
        g_cancellable_cancel(cancellable.get());
        iterate(*answer, std::chrono::steady_clock::now() + graceAfterCancelling, true);
    }
    return std::move(answer->result);
}

void GlibSteps::iterate(const Answer& answer, std::optional<Time> deadline, bool evenWhenStopped) {
    bool expired = false;
    GSource* timer = nullptr;
    if (deadline) {
        timer = g_timeout_source_new(millisecondsUntil(*deadline));
        const auto expire = [](gpointer flag) -> gboolean {
            *static_cast<bool*>(flag) = true;
            return G_SOURCE_REMOVE;
        };
        g_source_set_callback(timer, expire, &expired, nullptr);
        g_source_attach(timer, context_);
    }
    while (!answer.result && !expired && (evenWhenStopped || !stopping_))
        g_main_context_iteration(context_, TRUE);
    if (!timer) return;
    g_source_destroy(timer);
    g_source_unref(timer);
}

void GlibSteps::settle() {
    while (g_main_context_iteration(context_, FALSE))
        continue;
}

void GlibSteps::stop() {
    stopping_ = true;
    g_main_context_wakeup(context_);
}

} // namespace quillon
