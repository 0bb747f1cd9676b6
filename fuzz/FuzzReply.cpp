#include "Fuzz.h"

#include "setup/GroupUpdates.h"
#include "telegram/Reply.h"

// Any reply is judged: a wait is short and not negative, a refusal says something, and the updates
// of a success are searched.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillon;
    const HttpReply reply{
        .status = size > 0 ? data[0] * 2 : 0,
        .body = QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size))};
    const Verdict verdict = judge(reply);
    if (const auto* wait = std::get_if<Wait>(&verdict)) {
        require(wait->duration.count() >= 0 && wait->duration <= longestWait);
    } else if (const auto* success = std::get_if<Success>(&verdict)) {
        const auto group = latestGroup(success->result);
        (void)topicThreads(success->result, group.value_or(0));
    }
    return 0;
}
