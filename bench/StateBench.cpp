// Reading the files that the program starts with.
#include "state/Config.h"
#include "state/Sent.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace {

using namespace quillon;

void readConfig(benchmark::State& state) {
    Config config;
    config.chatId = -1'001'234'567'890;
    config.chatTitle = "Family & friends";
    config.botName = "quillon_demo_bot";
    for (Topic& topic : config.topics)
        topic.threadId = 12'345;
    const std::string bytes = encodeConfig(config);
    for ([[maybe_unused]] const auto round : state) {
        const auto read = decodeConfig(bytes);
        if (read != config) state.SkipWithError("config.json does not read as it was written");
    }
}
BENCHMARK(readConfig)->Name("config")->Unit(benchmark::kMicrosecond);

void readHistory(benchmark::State& state) {
    const Sent entry{.id = QUuid::createUuid(),
                     .symbol = "photo",
                     .title = "Image · 1920×1080",
                     .topic = "🖼 Images",
                     .date = Date{std::chrono::seconds{1'700'000'000}},
                     .error = "Couldn't reach Telegram. Check your internet connection."};
    const std::string bytes = encodeHistory(std::vector<Sent>(historyLimit, entry));
    for ([[maybe_unused]] const auto round : state) {
        const auto read = decodeHistory(bytes);
        if (read.size() != historyLimit) state.SkipWithError("history.json was not read");
    }
}
BENCHMARK(readHistory)->Name("history")->Unit(benchmark::kMicrosecond);

} // namespace
