#pragma once

#include "base/Json.h"
#include "telegram/TelegramError.h"
#include "telegram/Upload.h"

#include <QCoroTask>

#include <functional>
#include <optional>
#include <stop_token>
#include <string>

namespace quillon {

class Clock;
class HttpTransport;

/// Told on the main thread how far the body of a request has gone out, in bytes.
using SendProgress = std::function<void(qint64 sent, qint64 total)>;

/// A client of the Bot API for one bot token: cheap to make, without state between calls. Clock and
/// transport must outlive it and its calls.
class Telegram {
public:
    /// `api` is scheme and host of the Bot API, without a slash at the end.
    Telegram(std::string token, std::string api, HttpTransport& http, Clock& clock);

    /// Posts one method: parameters as JSON, or as a multipart form when a file goes with them.
    /// Gives the reply's "result", JSON null when there is none. Repeats the call after a
    /// flood-control wait of less than 60 seconds. Throws TelegramError: the token cannot be
    /// one, Telegram cannot be reached, or what Telegram itself said. Throws Stopped once a
    /// stop is requested, unless the request is on its way.
    [[nodiscard]] QCoro::Task<Json> call(std::string method, Json params,
                                         std::optional<Upload> upload = std::nullopt,
                                         SendProgress progress = {},
                                         std::stop_token stop = {}) const;

private:
    std::string token_;
    std::string api_;
    HttpTransport* http_;
    Clock* clock_;
};

} // namespace quillon
