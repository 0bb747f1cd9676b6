// Failures between a client and the Bot API, and the queue of those that the next calls meet.
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
    closeAtAccept, ///< the connection is reset as soon as it is accepted
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
    int count = 1;      ///< how many calls fail
    std::string method; ///< only calls of this method ("events" for usage events); empty for any
                        ///< Bot API method
    std::chrono::milliseconds delay{500};
    int status = 200;
    int retryAfter = 1;
    std::string body;

    /// Reads the JSON that POST /sandbox/fail takes, for example
    /// {"kind":"retry-after","count":2,"method":"sendMessage","retry_after":3}. Throws
    /// std::invalid_argument for an unknown kind or a field that the kind does not take, and names
    /// it.
    static Fault fromJson(const Json& json);

    /// A help text: each kind with its fields on a line.
    static std::string help();

    /// The kind's name as fromJson reads it.
    std::string name() const;

    /// The reply that replaces the real one; none for kinds that keep the real reply.
    std::optional<HttpReply> reply() const;
};

/// The faults that wait for a call. Thread-safe.
class FaultBox {
public:
    void add(Fault fault);
    void clear();

    /// Takes the oldest fault that breaks a connection when it is accepted.
    std::optional<Fault> takeForConnection();

    /// Takes the oldest fault that applies to a call of `method`.
    std::optional<Fault> takeForCall(std::string_view method);

private:
    template <typename Applies>
    std::optional<Fault> take(const Applies& applies);

    std::mutex mutex_;
    std::vector<Fault> faults_;
};

} // namespace quillon::sandbox
