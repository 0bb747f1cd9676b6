#pragma once

#include <QByteArray>
#include <QFuture>

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quillon {

/// One POST request.
struct HttpRequest {
    /// May hold the bot token: nothing prints, logs or throws it.
    std::string url;
    /// One with an empty value is left out, even where the transport would add it by itself.
    std::vector<std::pair<std::string, std::string>> headers;
    /// Sent one after another as one body; the bytes are shared, never copied.
    std::vector<QByteArray> body;
    /// How long nothing may move in either direction before the transfer has failed.
    std::chrono::milliseconds inactivityTimeout{std::chrono::seconds{30}};
    /// Told on the main thread, a few times a second, how many bytes of the body have gone out.
    std::function<void(qint64 sent, qint64 total)> progress;
};

/// Whatever a server answered, whole.
struct HttpReply {
    int status = 0;
    QByteArray body;
};

/// HTTP requests that run off the main thread.
class HttpTransport {
public:
    /// A larger reply counts as a failed transfer, in bytes.
    static constexpr qint64 maximumReplySize = 20'000'000;

    virtual ~HttpTransport() = default;

    /// The reply, or none when the transfer failed: no network, host not found, certificate not
    /// trusted, nothing moved for the time-out, connection lost, reply too large.
    /// Redirects are replies. The future always finishes and is never cancelled.
    [[nodiscard]] virtual QFuture<std::optional<HttpReply>> post(HttpRequest request) = 0;
};

} // namespace quillon
