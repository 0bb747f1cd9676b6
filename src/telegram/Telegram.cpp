#include "telegram/Telegram.h"

#include "base/Translate.h"
#include "platform/HttpTransport.h"
#include "platform/Sleep.h"
#include "telegram/Multipart.h"
#include "telegram/Reply.h"
#include "telegram/Url.h"

#include <QCoroFuture>
#include <QtConcurrentRun>

#include <chrono>

namespace quillon {

namespace {

using namespace std::chrono_literals;

/// What @BotFather makes tokens of. Other characters, such as "#" and "?", would change the URL.
constexpr const char* tokenCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
                                        "0123456789:_-";

constexpr std::chrono::seconds plainTimeout = 30s;
constexpr std::chrono::seconds uploadTimeout = 300s;

HttpRequest makeRequest(const std::string& url, const Json& params,
                        const std::optional<Upload>& upload) {
    HttpRequest request;
    request.url = url;
    if (upload) {
        MultipartBody multipart = encodeMultipart(params, *upload, makeBoundary());
        request.headers = {{"Content-Type", std::move(multipart.contentType)}};
        request.body = std::move(multipart.pieces);
        request.inactivityTimeout = uploadTimeout;
    } else {
        request.headers = {{"Content-Type", "application/json"}};
        request.body = {QByteArray::fromStdString(writeJson(params))};
        request.inactivityTimeout = plainTimeout;
    }
    return request;
}

/// Sleeps for so long, and less when a stop is requested, which it looks for every second.
QCoro::Task<> wait(Clock& clock, std::chrono::seconds duration, std::stop_token stop) {
    for (; duration > 0s && !stop.stop_requested(); duration -= 1s) {
        co_await sleep(clock, 1s);
    }
}

/// Reads a reply. Almost all are small; a large one is read off the main thread.
QCoro::Task<Verdict> judged(HttpReply reply) {
    constexpr qsizetype small = 100'000;
    if (reply.body.size() <= small) co_return judge(reply);
    const QFuture<Verdict> pending = QtConcurrent::run(judge, reply);
    co_return co_await pending;
}

} // namespace

Telegram::Telegram(std::string token, std::string api, HttpTransport& http, Clock& clock)
    : token_{std::move(token)},
      api_{std::move(api)},
      http_{&http},
      clock_{&clock} {}

QCoro::Task<Json> Telegram::call(std::string method, Json params, std::optional<Upload> upload,
                                 SendProgress progress, std::stop_token stop) const {
    // The coroutine may outlive this value: it keeps what it needs in its own frame.
    HttpTransport& http = *http_;
    Clock& clock = *clock_;
    if (!isServerAddress(api_)) {
        throw TelegramError{translate(
            "Telegram",
            "QUILLON_BOT_API is not the address of a server. It looks like http://127.0.0.1:8081")};
    }
    const std::string url = api_ + "/bot" + token_ + "/" + method;
    if (!isUrlText(url) || token_.find_first_not_of(tokenCharacters) != token_.npos)
        throw TelegramError{translate("Telegram", "That bot token doesn't look right.")};

    for (;;) {
        if (stop.stop_requested()) throw Stopped{};
        HttpRequest request = makeRequest(url, params, upload);
        request.progress = progress;
        request.onlyReads = method.starts_with("get"); // as the Bot API names what changes nothing
        const std::optional<HttpReply> reply = co_await http.post(std::move(request));
        if (!reply) {
            throw TelegramError{
                translate("Telegram", "Couldn't reach Telegram. Check your internet connection."),
                TelegramError::Cause::unreachable};
        }
        Verdict verdict = co_await judged(*reply);
        if (auto* success = std::get_if<Success>(&verdict)) co_return std::move(success->result);
        if (auto* refusal = std::get_if<Refusal>(&verdict)) {
            throw TelegramError{std::move(refusal->message), refusal->ofToken
                                                                 ? TelegramError::Cause::token
                                                                 : TelegramError::Cause::refused};
        }
        co_await wait(clock, std::get<Wait>(verdict).duration, stop);
    }
}

} // namespace quillon
