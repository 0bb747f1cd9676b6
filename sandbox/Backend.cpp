#include "sandbox/Backend.h"

#include "sandbox/ApiError.h"
#include "sandbox/Control.h"
#include "sandbox/Methods.h"
#include "sandbox/Text.h"

#include <algorithm>
#include <utility>

namespace quillon::sandbox {

namespace {

constexpr std::string_view botPrefix = "/bot";
constexpr std::string_view eventsPath = "/api/app/events";
constexpr std::size_t longestToken = 80;

struct BotPath {
    std::string token;
    std::string method;
};

std::optional<BotPath> botPath(std::string_view path) {
    if (!path.starts_with(botPrefix)) return std::nullopt;
    path.remove_prefix(botPrefix.size());
    const auto slash = path.find('/');
    if (slash == std::string_view::npos) return std::nullopt;
    return BotPath{std::string{path.substr(0, slash)}, std::string{path.substr(slash + 1)}};
}

// A token is a number without leading zeros, a colon, and letters, digits, hyphens and underscores.
bool isToken(std::string_view token) {
    const auto colon = token.find(':');
    if (colon == std::string_view::npos || colon == 0 || colon + 1 == token.size() ||
        token.size() > longestToken || token.front() == '0')
        return false;
    const auto secret = [](char c) { return isDigit(c) || isLetter(c) || c == '-' || c == '_'; };
    return std::ranges::all_of(token.substr(0, colon), isDigit) &&
           std::ranges::all_of(token.substr(colon + 1), secret);
}

RequestRecord begunRecord(const HttpRequest& request, const std::string& faultName) {
    RequestRecord record;
    record.connection = request.connection;
    record.time = request.time;
    record.verb = request.verb;
    record.method = Backend::methodOf(request.path).value_or("(no method)");
    record.contentType = request.header("content-type");
    record.bodySize = request.body.size;
    record.fault = faultName;
    return record;
}

} // namespace

std::optional<std::string> Backend::methodOf(std::string_view path) {
    if (path == eventsPath) return "events";
    const auto bot = botPath(path);
    if (!bot) return std::nullopt;
    // Anything else there may be a token, by a client's mistake, and must not be logged.
    return std::ranges::all_of(bot->method, isLetter) ? bot->method : "(no method)";
}

HttpReply Backend::serve(HttpRequest& request, const std::string& faultName) {
    if (request.path.starts_with("/sandbox/")) return serveControl(*this, request);
    if (request.path == eventsPath) return serveEvents(request);
    RequestRecord record = begunRecord(request, faultName);
    HttpReply reply = serveBot(request, record);
    record.status = reply.status;
    log.add(std::move(record));
    return reply;
}

HttpReply Backend::serveBot(HttpRequest& request, RequestRecord& record) try {
    const Json result = call(request, record);
    return {200, "application/json", dumped(Json{{"ok", true}, {"result", result}})};
} catch (const ApiError& error) {
    record.error = error.what();
    return errorReply(error);
}

Json Backend::call(HttpRequest& request, RequestRecord& record) {
    const auto path = botPath(request.path);
    const bool verbKnown = request.verb == "POST" || request.verb == "GET";
    if (!path || !isToken(path->token) || !verbKnown) throw ApiError{404, "Not Found"};
    record.parameters = readParameters(request, hashFiles_);
    std::unique_lock lock{mutex_};
    Bot* const bot = world_.bot(path->token);
    if (bot == nullptr) throw ApiError{401, "Unauthorized"};
    record.bot = bot->id;
    const Method method = findMethod(path->method);
    if (method == nullptr) throw ApiError{404, "Not Found"};
    MethodCall methodCall{world_, *bot, record.parameters, lock, changed_, stopping_};
    return method(methodCall);
}

void Backend::record(HttpRequest& request, const std::string& faultName, bool bodyRead,
                     int status) {
    RequestRecord record = begunRecord(request, faultName);
    record.status = status;
    try {
        if (bodyRead) record.parameters = readParameters(request, hashFiles_);
    } catch (const ApiError& error) {
        record.error = error.what();
    }
    log.add(std::move(record));
}

HttpReply Backend::serveEvents(HttpRequest& request) {
    const std::lock_guard lock{mutex_};
    if (request.verb != "POST") return {405, "application/json", "{}"};
    log.note("events " + std::to_string(request.body.size) + " bytes");
    events_.push_back({request.headers, std::string{request.body.view()}});
    return {eventsStatus_, "application/json", "{}"};
}

std::vector<EventsRecord> Backend::events() {
    const std::lock_guard lock{mutex_};
    return events_;
}

void Backend::setEventsStatus(int status) {
    const std::lock_guard lock{mutex_};
    eventsStatus_ = status;
}

void Backend::setStopping(bool stopping) {
    const std::lock_guard lock{mutex_};
    stopping_ = stopping;
    changed_.notify_all();
}

} // namespace quillon::sandbox
