// How fast a long text becomes messages.
#include "send/Message.h"

#include <benchmark/benchmark.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using namespace quillon;

constexpr std::size_t textSize = 10'000'000; // bytes

constexpr std::string_view latin =
    "The quick brown fox jumps over the lazy dog; Zwölf Boxkämpfer jagen Viktor quer über Sylt.\n";
constexpr std::string_view html =
    "if (a < b && c > d) { return \"<p class='x'>&amp;</p>\"; } // \t tabs & <tags>\r\n";
constexpr std::string_view cyrillic = "Съешь же ещё этих мягких французских булок, да выпей чаю.\n";
constexpr std::string_view chinese = "天地玄黃，宇宙洪荒。日月盈昃，辰宿列張。いろはにほへと\n";
constexpr std::string_view devanagari =
    "सभी मनुष्यों को गौरव और अधिकारों के मामले में जन्मजात स्वतन्त्रता प्राप्त है।\n";
constexpr std::string_view korean =
    "모든 인간은 태어날 때부터 자유로우며 존엄과 권리에 있어 동등하다.\n";
constexpr std::string_view emoji =
    "👨‍👩‍👧‍👦👩🏽‍🚀🇩🇪🇯🇵❤️‍🔥👍🏿"
    "🏴󠁧󠁢󠁳󠁣󠁴󠁿🙂🎉\n";

using Pieces = std::vector<std::string_view>;

std::string repeated(const Pieces& pieces) {
    std::string text;
    while (text.size() < textSize) {
        for (const std::string_view piece : pieces)
            text += piece;
    }
    return text;
}

void makeMessages(benchmark::State& state, const Pieces& pieces) {
    const std::string text = repeated(pieces);
    for ([[maybe_unused]] const auto round : state) {
        auto messages = textMessages(text);
        if (messages.empty()) return state.SkipWithError("no messages");
        benchmark::DoNotOptimize(messages);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

[[maybe_unused]] const bool registered = [] {
    const std::vector<std::pair<const char*, Pieces>> texts{
        {"mixed", {latin, html, cyrillic, chinese, devanagari, korean, emoji}},
        {"latin", {latin}},
        {"html", {html}},
        {"cyrillic", {cyrillic}},
        {"chinese", {chinese}},
        {"devanagari", {devanagari}},
        {"korean", {korean}},
        {"emoji", {emoji}},
    };
    for (const auto& [name, pieces] : texts) {
        benchmark::RegisterBenchmark((std::string{"messages/"} + name).c_str(), makeMessages,
                                     pieces)
            ->Unit(benchmark::kMillisecond);
    }
    return true;
}();

} // namespace
