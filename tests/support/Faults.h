#pragma once

#include "sandbox/Fault.h"

namespace quillon::test {

/// A fault that meets the next call; `delay` counts for the kinds that are late.
inline sandbox::Fault fault(sandbox::FaultKind kind,
                            std::chrono::milliseconds delay = sandbox::Fault{}.delay) {
    sandbox::Fault fault;
    fault.kind = kind;
    fault.delay = delay;
    return fault;
}

/// The same fault, which waits for a call of the method.
inline sandbox::Fault onlyFor(const std::string& method, sandbox::Fault fault) {
    fault.method = method;
    return fault;
}

/// Telegram asks for a wait of so many seconds.
inline sandbox::Fault flood(int seconds) {
    sandbox::Fault flood = fault(sandbox::FaultKind::retryAfter);
    flood.retryAfter = seconds;
    return flood;
}

/// The next call of the method is answered with this body.
inline sandbox::Fault answer(const std::string& method, int status, const std::string& body) {
    sandbox::Fault answer = fault(sandbox::FaultKind::answer);
    answer.method = method;
    answer.status = status;
    answer.body = body;
    return answer;
}

/// The next call of the method succeeds with this result.
inline sandbox::Fault answer(const std::string& method, const sandbox::Json& result) {
    return answer(method, 200, sandbox::dumped({{"ok", true}, {"result", result}}));
}

/// The next call of the method is refused with this description.
inline sandbox::Fault refusal(const std::string& method, int code, const std::string& description) {
    return answer(
        method, code,
        sandbox::dumped({{"ok", false}, {"error_code", code}, {"description", description}}));
}

} // namespace quillon::test
