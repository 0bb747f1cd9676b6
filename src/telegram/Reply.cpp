#include "telegram/Reply.h"

#include "base/Bytes.h"
#include "base/Translate.h"

namespace quillon {

namespace {

/// The shortest wait that makes sense: −1 stands for an immediate repeat, since a second is added.
constexpr std::int64_t leastRetryAfter = -1;

Refusal refusedToken() {
    return Refusal{translate("Telegram", "Telegram didn't accept that bot token."), true};
}

Verdict judgeWithoutEnvelope(int status) {
    if (status == 401 || status == 404) return refusedToken();
    return Refusal{filled(translate("Telegram", "Telegram sent an empty reply (error %1). Try "
                                                "again in a moment."),
                          {std::to_string(status)})};
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
    if (integerMember(*envelope, "error_code") == 401) return refusedToken();
    const auto description = textMember(*envelope, "description");
    return Refusal{description ? *description : translate("Telegram", "Telegram said no.")};
}

} // namespace quillon
