#pragma once

#include "sandbox/Fault.h"

#include <string>

namespace quillon::test {

/// A fault that meets the next calls: `count` of them, since libcurl tries a connection anew that
/// was kept open and breaks.
inline sandbox::Fault fault(sandbox::FaultKind kind, int count = 1) {
    sandbox::Fault fault;
    fault.kind = kind;
    fault.count = count;
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
