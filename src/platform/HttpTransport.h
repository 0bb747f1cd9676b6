#pragma once

#include <QByteArray>
#include <QFuture>

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <stop_token>
#include <string>
#include <utility>
#include <vector>

namespace quillon {

/// One request.
struct HttpRequest {
    /// May hold the bot token: nothing prints, logs or throws it.
    std::string url;
    /// A header with an empty value is left out, even if the transport would add it by itself.
    std::vector<std::pair<std::string, std::string>> headers;
    /// The pieces are sent one after another as one body; their bytes are shared, never copied.
    std::vector<QByteArray> body;
    /// The transfer fails after no byte has moved in either direction for this long.
    std::chrono::milliseconds inactivityTimeout{std::chrono::seconds{30}};
    /// The limit for the whole transfer; 0 for none.
    std::chrono::milliseconds totalTimeout{0};
    /// The request changes nothing at the server. It is sent once more, on a new connection, when
    /// one that was kept open breaks before the reply. Any other request may have been carried out.
    bool onlyReads = false;
    /// Called on the main thread, a few times a second, with how many bytes of the body have gone
    /// out.
    std::function<void(qint64 sent, qint64 total)> progress;
    /// A request to stop soon ends the transfer as a failed one.
    std::stop_token stop{};
};

/// A server's complete answer.
struct HttpReply {
    int status = 0;
    QByteArray body;
};

/// One file to fetch.
struct HttpDownload {
    std::string url;
    /// The bytes go to this path, where nothing is yet, in a folder of this user alone. The file is
    /// readable by its owner alone (0600) and is removed when the download fails.
    std::filesystem::path file;
    /// A larger file counts as failed, in bytes.
    qint64 maximumSize = 0;
    /// The download fails after nothing has moved for this long.
    std::chrono::milliseconds inactivityTimeout{std::chrono::seconds{30}};
    /// Called on the main thread, a few times a second, with how many bytes have come; `total` is
    /// -1 where the server does not say.
    std::function<void(qint64 received, qint64 total)> progress;
    /// A request to stop ends the download soon.
    std::stop_token stop;
};

/// The result of a download.
enum class DownloadOutcome {
    done,
    failed,     ///< no network, host not trusted, another status than 200, connection lost…
    tooLarge,   ///< announced as or grown larger than the maximum
    unwritable, ///< the file could not be made or written
    diskFull,
    stopped, ///< at the caller's request
};

/// How far the way to a server goes, and the server's time.
struct HttpLook {
    enum class Outcome {
        unknown,     ///< nothing was tried, or something else went wrong
        answers,     ///< the server replied, whatever it said
        noLibrary,   ///< what makes requests is not installed
        badAddress,  ///< the address is none, or not of a kind that is allowed
        noProxyName, ///< the name of the proxy is not found
        noName,      ///< the name of the server is not found
        noProxy,     ///< the proxy does not take the connection on
        noWay,       ///< no connection to the server, or to the proxy
        untrusted,   ///< the server's certificate is from nobody who is trusted
        wrongTime,   ///< the certificate is not valid at this computer's time
        noTls,       ///< no encryption could be agreed
        silent,      ///< no reply in time
    };
    Outcome outcome = Outcome::unknown;
    /// The server's time of day, where it told.
    std::optional<std::chrono::system_clock::time_point> time{};
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

    /// Like post, without the body, and following redirects to https. Plain http reaches this
    /// machine itself, but no other unless that is allowed for all requests.
    [[nodiscard]] virtual QFuture<std::optional<HttpReply>> get(HttpRequest request) = 0;

    /// Fetches a file as get would. The future always finishes and is never cancelled.
    [[nodiscard]] virtual QFuture<DownloadOutcome> download(HttpDownload download) = 0;

    /// Asks the server for the page at the URL, in the way of any other request but on a connection
    /// of its own, and tells how far that came within the limit. The future always finishes.
    [[nodiscard]] virtual QFuture<HttpLook> look(std::string /*url*/,
                                                 std::chrono::milliseconds /*limit*/) {
        return QtFuture::makeReadyFuture(HttpLook{});
    }
};

} // namespace quillon
