#include "sandbox/Control.h"

#include "sandbox/Backend.h"
#include "sandbox/View.h"

#include <array>
#include <map>
#include <stdexcept>

namespace quillon::sandbox {

namespace {

HttpReply json(const Json& body) {
    return {200, "application/json", dumped(body, 2) + '\n'};
}

HttpReply done() {
    return json({{"ok", true}});
}

BotRole roleNamed(const std::string& name) {
    static const std::map<std::string, BotRole> roles{
        {"absent", BotRole::absent},         {"kicked", BotRole::kicked},
        {"restricted", BotRole::restricted}, {"member", BotRole::member},
        {"admin", BotRole::admin},           {"topic-admin", BotRole::topicAdmin}};
    const auto found = roles.find(name);
    if (found == roles.end()) throw std::invalid_argument{"unknown role"};
    return found->second;
}

// "group" is the group's id; without one it is the newest group.
Chat& groupOf(World& world, const Json& in) {
    if (in.contains("group")) return world.knownChat(in["group"].get<std::int64_t>());
    if (world.chats().empty()) throw std::out_of_range{"no group"};
    return world.knownChat(world.chats().back().id);
}

using Page = HttpReply (*)(Backend& backend, const Json& in);

HttpReply viewPage(Backend& backend, const Json&) {
    return {200, "text/plain; charset=utf-8", backend.withWorld(viewText)};
}

HttpReply viewJsonPage(Backend& backend, const Json&) {
    return json(backend.withWorld(viewJson));
}

HttpReply requestsPage(Backend& backend, const Json&) {
    Json list = Json::array();
    for (const RequestRecord& record : backend.log.records())
        list.push_back(toJson(record));
    return json(list);
}

HttpReply clearRequestsPage(Backend& backend, const Json&) {
    backend.log.clear();
    return done();
}

// What Fault::fromJson takes.
HttpReply failPage(Backend& backend, const Json& in) {
    backend.faults.add(Fault::fromJson(in));
    return done();
}

HttpReply clearFaultsPage(Backend& backend, const Json&) {
    backend.faults.clear();
    return done();
}

// {"text":"hi","group":…,"topic":…}; with "token" instead of "group" in the bot's private chat.
HttpReply saysPage(Backend& backend, const Json& in) {
    return json(backend.withWorld([&](World& world) -> Json {
        const auto text = in.value("text", std::string{"hi"});
        if (!in.contains("token")) {
            return {{"message_id",
                     world.userSays(groupOf(world, in), text, in.value("topic", std::int64_t{0}))}};
        }
        Bot* const bot = world.bot(in["token"].get<std::string>());
        if (bot == nullptr) throw std::out_of_range{"no such bot"};
        return {{"message_id", world.userSaysTo(*bot, text)}};
    }));
}

// {"title":"Family","id":…,"type":"supergroup" or "group","forum":true,"role":"topic-admin"}
HttpReply groupPage(Backend& backend, const Json& in) {
    GroupOptions options;
    options.title = in.value("title", options.title);
    options.id = in.value("id", options.id);
    options.forum = in.value("forum", options.forum);
    if (in.value("type", std::string{}) == "group") options.kind = ChatKind::group;
    options.bot = roleNamed(in.value("role", std::string{"topic-admin"}));
    return json(backend.withWorld([&](World& world) {
        return Json{{"id", world.addGroup(options).id}};
    }));
}

// {"group":…,"title":…,"forum":…,"role":…}: changes what is given.
HttpReply changeGroupPage(Backend& backend, const Json& in) {
    backend.withWorld([&](World& world) {
        Chat& chat = groupOf(world, in);
        chat.title = in.value("title", chat.title);
        chat.forum = in.value("forum", chat.forum);
        if (in.contains("role")) world.setRoleOfAll(chat, roleNamed(in["role"]));
    });
    return done();
}

// {"group":…,"forum":true}
HttpReply migratePage(Backend& backend, const Json& in) {
    return json(backend.withWorld([&](World& world) {
        return Json{{"id", world.migrate(groupOf(world, in), in.value("forum", true)).id}};
    }));
}

// {"group":…,"topic":…}
HttpReply deleteTopicPage(Backend& backend, const Json& in) {
    backend.withWorld([&](World& world) {
        world.deleteTopic(groupOf(world, in), in.at("topic").get<std::int64_t>());
    });
    return done();
}

// {"token":…,"username":…}
HttpReply botPage(Backend& backend, const Json& in) {
    backend.withWorld([&](World& world) {
        world.addBot(in.at("token").get<std::string>(), in.value("username", std::string{}));
    });
    return done();
}

HttpReply eventsPage(Backend& backend, const Json&) {
    Json list = Json::array();
    for (const EventsRecord& record : backend.events())
        list.push_back({{"headers", record.headers}, {"body", record.body}});
    return json(list);
}

// {"status":503}; to let deliveries hang, POST /sandbox/fail with the method "events".
HttpReply eventsStatusPage(Backend& backend, const Json& in) {
    backend.setEventsStatus(in.at("status").get<int>());
    return done();
}

struct Route {
    std::string_view verb;
    std::string_view path;
    Page page;
};

constexpr std::array routes{
    Route{"GET", "/sandbox/view", viewPage},
    Route{"GET", "/sandbox/view.json", viewJsonPage},
    Route{"GET", "/sandbox/requests", requestsPage},
    Route{"POST", "/sandbox/requests/clear", clearRequestsPage},
    Route{"POST", "/sandbox/fail", failPage},
    Route{"POST", "/sandbox/fail/clear", clearFaultsPage},
    Route{"POST", "/sandbox/says", saysPage},
    Route{"POST", "/sandbox/group", groupPage},
    Route{"POST", "/sandbox/group/change", changeGroupPage},
    Route{"POST", "/sandbox/group/migrate", migratePage},
    Route{"POST", "/sandbox/topics/delete", deleteTopicPage},
    Route{"POST", "/sandbox/bot", botPage},
    Route{"GET", "/sandbox/events", eventsPage},
    Route{"POST", "/sandbox/events/status", eventsStatusPage},
};

} // namespace

HttpReply serveControl(Backend& backend, const HttpRequest& request) try {
    const std::string_view body = request.body.view();
    for (const Route& route : routes) {
        if (route.path == request.path && route.verb == request.verb)
            return route.page(backend, body.empty() ? Json::object() : Json::parse(body));
    }
    return {404, "application/json", "{\"error\":\"no such page\"}\n"};
} catch (const std::exception& error) {
    return {400, "application/json", dumped(Json{{"error", error.what()}}) + '\n'};
}

} // namespace quillon::sandbox
