// What can go wrong between a client and the Bot API, and the switch that makes the next calls fail
// in such a way.
#pragma once

#include "sandbox/Http.h"
#include "sandbox/Json.h"

#include <chrono>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon::sandbox {

enum class FaultKind {
    closeAtAccept, ///< the connection is reset as soon as it stands
    cutBeforeBody, ///< reset once the header is read
    cutAfterBody,  ///< closed once the whole request is read, without a reply
    cutReply,      ///< carried out; closed in the middle of the reply
    delay,         ///< carried out; the reply waits for `delay`
    trickle,       ///< carried out; the reply comes in twenty pieces with `delay` between them
    hang,          ///< never answered
    html502,       ///< a gateway's HTML error page
    empty,         ///< no body, with `status`
    truncatedJson, ///< JSON that stops in the middle
    jsonList,      ///< a JSON list instead of an object
    hugeReply,     ///< a valid reply of 24 MB
    retryAfter,    ///< 429 with `retryAfter` seconds
    answer,        ///< `status` and `body` as given
};

struct Fault {
    FaultKind kind = FaultKind::hang;
    int count = 1;      ///< how many calls it meets
    std::string method; ///< only calls of this method ("events" for usage events); empty for any
                        ///< Bot API method
    std::chrono::milliseconds delay{500};
    int status = 200;
    int retryAfter = 1;
    std::string body;

    /// From what POST /sandbox/fail takes, for example
    /// {"kind":"retry-after","count":2,"method":"sendMessage","retry_after":3}. Throws
    /// std::invalid_argument, which names it, for an unknown kind or a field that the kind does not
    /// take.
    static Fault fromJson(const Json& json);

    /// The kinds and the fields that each takes, one per line, for people to read.
    static std::string help();

    /// The kind's name as fromJson reads it.
    std::string name() const;

    /// The reply that stands in for the real one; none for kinds that leave the reply as it is.
    std::optional<HttpReply> reply() const;
};

/// The faults that wait for a call. Thread-safe.
class FaultBox {
public:
    void add(Fault fault);
    void clear();

    /// A fault that breaks the connection that has just been accepted.
    std::optional<Fault> takeForConnection();

    /// The oldest fault that applies to a call of `method`.
    std::optional<Fault> takeForCall(std::string_view method);

private:
    template <typename Applies>
    std::optional<Fault> take(const Applies& applies);

    std::mutex mutex_;
    std::vector<Fault> faults_;
};

} // namespace quillon::sandbox
