// What recording one usage event costs when the queue is full; the window thread waits for it.
#include "analytics/Analytics.h"
#include "platform/Pasteboard.h"
#include "platform/linux/LinuxPlatform.h"

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include <memory>

namespace {

using namespace quillon;

void record(Analytics& analytics) {
    analytics.track("send", {{"kind", "image"}, {"via", "shortcut"}, {"size", "lt10m"}});
}

void trackIntoFullQueue(benchmark::State& state) {
    const QTemporaryDir folder;
    LinuxPlatform services{std::make_unique<EmptyPasteboard>()};
    Platform& platform = services.platform();
    platform.dataFolder = folder.path().toStdString();
    Analytics analytics{platform};
    while (analytics.queue().size() < EventQueue::limit)
        record(analytics);
    for ([[maybe_unused]] const auto round : state) {
        record(analytics);
    }
    if (Analytics{platform}.queue().size() != EventQueue::limit) {
        state.SkipWithError("the queue on disk is not full");
    }
}
BENCHMARK(trackIntoFullQueue)->Name("track")->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace
