#include "sandbox/Fault.h"

#include "sandbox/Text.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

namespace quillon::sandbox {

namespace {

constexpr std::array<std::pair<FaultKind, std::string_view>, 14> names{{
    {FaultKind::closeAtAccept, "close-at-accept"},
    {FaultKind::cutBeforeBody, "cut-before-body"},
    {FaultKind::cutAfterBody, "cut-after-body"},
    {FaultKind::cutReply, "cut-reply"},
    {FaultKind::delay, "delay"},
    {FaultKind::trickle, "trickle"},
    {FaultKind::hang, "hang"},
    {FaultKind::html502, "html-502"},
    {FaultKind::empty, "empty"},
    {FaultKind::truncatedJson, "truncated-json"},
    {FaultKind::jsonList, "json-list"},
    {FaultKind::hugeReply, "huge-reply"},
    {FaultKind::retryAfter, "retry-after"},
    {FaultKind::answer, "answer"},
}};

constexpr std::string_view gatewayPage =
    "<html>\r\n<head><title>502 Bad Gateway</title></head>\r\n<body>\r\n"
    "<center><h1>502 Bad Gateway</h1></center>\r\n<hr><center>nginx</center>\r\n"
    "</body>\r\n</html>\r\n";

constexpr std::size_t hugeReplyBytes = 24'000'000;

HttpReply hugeReply() {
    std::string body = R"({"ok":true,"result":")";
    body.append(hugeReplyBytes, 'x');
    body += "\"}";
    return {200, "application/json", std::move(body)};
}

HttpReply floodReply(int seconds) {
    const Json body{{"ok", false},
                    {"error_code", 429},
                    {"description", "Too Many Requests: retry after " + std::to_string(seconds)},
                    {"parameters", {{"retry_after", seconds}}}};
    return {429, "application/json", dumped(body)};
}

} // namespace

Fault Fault::fromJson(const Json& json) {
    const std::string kind = json.value("kind", std::string{});
    const auto* const found = std::find_if(names.begin(), names.end(),
                                           [&](const auto& entry) { return entry.second == kind; });
    if (found == names.end()) throw std::invalid_argument{"unknown fault kind"};
    Fault fault;
    fault.kind = found->first;
    fault.count = json.value("count", fault.count);
    fault.method = json.value("method", fault.method);
    fault.delay = std::chrono::milliseconds{json.value("delay_ms", fault.delay.count())};
    fault.status = json.value("status", fault.status);
    fault.retryAfter = json.value("retry_after", fault.retryAfter);
    if (json.contains("body")) {
        fault.body =
            json["body"].is_string() ? json["body"].get<std::string>() : dumped(json["body"]);
    }
    return fault;
}

std::string Fault::name() const {
    const auto* const found = std::find_if(
        names.begin(), names.end(), [this](const auto& entry) { return entry.first == kind; });
    return std::string{found->second};
}

std::optional<HttpReply> Fault::reply() const {
    switch (kind) {
    case FaultKind::html502:
        return HttpReply{502, "text/html", std::string{gatewayPage}};
    case FaultKind::empty:
        return HttpReply{status, "application/json", {}};
    case FaultKind::truncatedJson:
        return HttpReply{200, "application/json", R"({"ok":true,"result":{"message_id":7,"da)"};
    case FaultKind::jsonList:
        return HttpReply{200, "application/json", R"([{"ok":true}])"};
    case FaultKind::hugeReply:
        return hugeReply();
    case FaultKind::retryAfter:
        return floodReply(retryAfter);
    case FaultKind::answer:
        return HttpReply{status, "application/json", body};
    default:
        return std::nullopt;
    }
}

void FaultBox::add(Fault fault) {
    const std::lock_guard lock{mutex_};
    faults_.push_back(std::move(fault));
}

void FaultBox::clear() {
    const std::lock_guard lock{mutex_};
    faults_.clear();
}

template <typename Applies>
std::optional<Fault> FaultBox::take(const Applies& applies) {
    const std::lock_guard lock{mutex_};
    const auto found = std::find_if(faults_.begin(), faults_.end(), applies);
    if (found == faults_.end()) return std::nullopt;
    Fault fault = *found;
    if (--found->count <= 0) faults_.erase(found);
    return fault;
}

std::optional<Fault> FaultBox::takeForConnection() {
    return take([](const Fault& fault) { return fault.kind == FaultKind::closeAtAccept; });
}

std::optional<Fault> FaultBox::takeForCall(std::string_view method) {
    return take([&](const Fault& fault) {
        const bool any = fault.method.empty() && method != "events";
        return fault.kind != FaultKind::closeAtAccept &&
               (any || lowered(fault.method) == lowered(method));
    });
}

} // namespace quillon::sandbox
