#include "sandbox/Fault.h"

#include "sandbox/ApiError.h"
#include "sandbox/Text.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

namespace quillon::sandbox {

namespace {

struct Field {
    std::string_view name;
    std::string_view meaning;
};

constexpr std::array fields{
    Field{"count", "how many calls it meets (default: 1)"},
    Field{"method", R"(only calls of this method; "events" for usage events)"},
    Field{"delay_ms", "milliseconds (default: 500)"},
    Field{"status", "the HTTP status (default: 200)"},
    Field{"retry_after", "seconds (default: 1)"},
    Field{"body", "the reply's text, or JSON to be sent as it is"},
};

struct Kind {
    FaultKind kind;
    std::string_view name;
    std::string_view meaning;
    std::array<std::string_view, 4> fields{"count", "method"};

    [[nodiscard]] bool takes(std::string_view field) const {
        return !field.empty() && std::ranges::find(fields, field) != fields.end();
    }
};

constexpr std::array kinds{
    Kind{FaultKind::closeAtAccept, "close-at-accept", "a new connection is reset", {"count"}},
    Kind{FaultKind::cutBeforeBody, "cut-before-body", "reset once the header is read"},
    Kind{FaultKind::cutAfterBody, "cut-after-body", "closed once the request is read"},
    Kind{FaultKind::cutReply, "cut-reply", "carried out; closed in the middle of the reply"},
    Kind{
        FaultKind::delay, "delay", "carried out; the reply waits", {"count", "method", "delay_ms"}},
    Kind{FaultKind::trickle,
         "trickle",
         "carried out; the reply comes in pieces",
         {"count", "method", "delay_ms"}},
    Kind{FaultKind::hang, "hang", "never answered"},
    Kind{FaultKind::html502, "html-502", "a gateway's HTML error page"},
    Kind{FaultKind::empty, "empty", "a reply without a body", {"count", "method", "status"}},
    Kind{FaultKind::truncatedJson, "truncated-json", "JSON that stops in the middle"},
    Kind{FaultKind::jsonList, "json-list", "a JSON list instead of an object"},
    Kind{FaultKind::hugeReply, "huge-reply", "a valid reply of 24 MB"},
    Kind{FaultKind::retryAfter,
         "retry-after",
         "429, too many requests",
         {"count", "method", "retry_after"}},
    Kind{FaultKind::answer, "answer", "a reply as given", {"count", "method", "status", "body"}},
};

const Kind& kindNamed(std::string_view name) {
    const auto* const found = std::ranges::find(kinds, name, &Kind::name);
    if (found == kinds.end())
        throw std::invalid_argument{"unknown fault kind \"" + std::string{name} + '"'};
    return *found;
}

std::string helpLine(std::string_view name, std::string_view meaning) {
    constexpr std::size_t column = 18;
    return "  " + std::string{name} + std::string(column - name.size(), ' ') +
           std::string{meaning} + '\n';
}

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
    return errorReply({429,
                       "Too Many Requests: retry after " + std::to_string(seconds),
                       {{"retry_after", seconds}}});
}

} // namespace

Fault Fault::fromJson(const Json& json) {
    const Kind& kind = kindNamed(json.value("kind", std::string{}));
    for (const auto& [name, value] : json.items()) {
        if (name == "kind" || kind.takes(name)) continue;
        throw std::invalid_argument{"the fault kind \"" + std::string{kind.name} +
                                    "\" has no field \"" + name + '"'};
    }
    Fault fault;
    fault.kind = kind.kind;
    fault.count = json.value("count", fault.count);
    fault.method = json.value("method", fault.method);
    fault.delay = std::chrono::milliseconds{json.value("delay_ms", fault.delay.count())};
    fault.status = json.value("status", fault.status);
    fault.retryAfter = json.value("retry_after", fault.retryAfter);
    const Json body = json.value("body", Json(""));
    fault.body = body.is_string() ? body.get<std::string>() : dumped(body);
    return fault;
}

std::string Fault::help() {
    std::string text = "kind:\n";
    for (const Kind& kind : kinds) {
        std::string taken;
        for (const Field& field : fields) {
            if (kind.takes(field.name))
                taken += (taken.empty() ? "" : ", ") + std::string{field.name};
        }
        text += helpLine(kind.name, std::string{kind.meaning} + " [" + taken + ']');
    }
    text += "and the fields in brackets:\n";
    for (const Field& field : fields)
        text += helpLine(field.name, field.meaning);
    return text;
}

std::string Fault::name() const {
    return std::string{std::ranges::find(kinds, kind, &Kind::kind)->name};
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
    const auto found = std::ranges::find_if(faults_, applies);
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
