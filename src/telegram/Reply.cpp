#include "telegram/Reply.h"

#include "base/Bytes.h"

namespace quillon {

namespace {

constexpr std::string_view refusedToken = "Telegram didn't accept that bot token.";

/// The shortest wait that makes sense: −1 stands for an immediate repeat, since a second is added.
constexpr std::int64_t leastRetryAfter = -1;

Verdict judgeWithoutEnvelope(int status) {
    if (status == 401 || status == 404) return Refusal{std::string{refusedToken}};
    return Refusal{"Telegram sent an empty reply (error " + std::to_string(status) +
                   "). Try again in a moment."};
}

std::optional<std::int64_t> retryAfter(const Json& envelope) {
    const Json* parameters = objectMember(envelope, "parameters");
    return parameters == nullptr ? std::nullopt : integerMember(*parameters, "retry_after");
}

} // namespace

Verdict judge(const HttpReply& reply) {
    std::optional<Json> envelope = parseJson(asText(reply.body));
    if (!envelope || !envelope->is_object()) return judgeWithoutEnvelope(reply.status);

    if (isTrue(*envelope, "ok")) {
        const auto result = envelope->find("result");
        return Success{result == envelope->end() ? Json{} : std::move(*result)};
    }
    if (const auto seconds = retryAfter(*envelope);
        seconds && *seconds >= leastRetryAfter && *seconds < longestWait.count()) {
        return Wait{std::chrono::seconds{*seconds + 1}};
    }
    if (integerMember(*envelope, "error_code") == 401) return Refusal{std::string{refusedToken}};
    return Refusal{textMember(*envelope, "description").value_or("Telegram said no.")};
}

} // namespace quillon
