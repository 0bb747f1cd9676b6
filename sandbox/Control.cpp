#include "sandbox/Control.h"

#include "sandbox/Backend.h"
#include "sandbox/View.h"

#include <array>
#include <map>
#include <stdexcept>

namespace quillon::sandbox {

namespace {

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

const Json done{{"ok", true}};

// {"text":"hi","group":…,"topic":…}; with "token" instead of "group" in the bot's private chat.
Json says(World& world, const Json& in) {
    const auto text = in.value("text", std::string{"hi"});
    if (!in.contains("token")) {
        const auto topic = in.value("topic", std::int64_t{0});
        return {{"message_id", world.userSays(groupOf(world, in), text, topic)}};
    }
    Bot* const bot = world.bot(in["token"].get<std::string>());
    if (bot == nullptr) throw std::out_of_range{"no such bot"};
    return {{"message_id", world.userSaysTo(*bot, text)}};
}

// {"title":"Family","id":…,"type":"supergroup" or "group","forum":true,"role":"topic-admin"}
Json addGroup(World& world, const Json& in) {
    GroupOptions options;
    options.title = in.value("title", options.title);
    options.id = in.value("id", options.id);
    options.forum = in.value("forum", options.forum);
    if (in.value("type", std::string{}) == "group") options.kind = ChatKind::group;
    options.bot = roleNamed(in.value("role", std::string{"topic-admin"}));
    return {{"id", world.addGroup(options).id}};
}

// {"group":…,"title":…,"forum":…,"role":…}: changes what is given.
Json changeGroup(World& world, const Json& in) {
    Chat& chat = groupOf(world, in);
    chat.title = in.value("title", chat.title);
    chat.forum = in.value("forum", chat.forum);
    if (in.contains("role")) world.setRoleOfAll(chat, roleNamed(in["role"]));
    return done;
}

// {"group":…,"forum":true}
Json migrate(World& world, const Json& in) {
    return {{"id", world.migrate(groupOf(world, in), in.value("forum", true)).id}};
}

// {"group":…,"topic":…}
Json deleteTopic(World& world, const Json& in) {
    world.deleteTopic(groupOf(world, in), in.at("topic").get<std::int64_t>());
    return done;
}

// {"token":…,"username":…}
Json addBot(World& world, const Json& in) {
    world.addBot(in.at("token").get<std::string>(), in.value("username", std::string{}));
    return done;
}

Json requests(Backend& backend, const Json&) {
    Json list = Json::array();
    for (const RequestRecord& record : backend.log.records())
        list.push_back(toJson(record));
    return list;
}

Json clearRequests(Backend& backend, const Json&) {
    backend.log.clear();
    return done;
}

// What Fault::fromJson takes.
Json fail(Backend& backend, const Json& in) {
    backend.faults.add(Fault::fromJson(in));
    return done;
}

Json clearFaults(Backend& backend, const Json&) {
    backend.faults.clear();
    return done;
}

Json events(Backend& backend, const Json&) {
    Json list = Json::array();
    for (const EventsRecord& record : backend.events())
        list.push_back({{"headers", record.headers}, {"body", record.body}});
    return list;
}

// {"status":503}; to let deliveries hang, POST /sandbox/fail with the method "events".
Json setEventsStatus(Backend& backend, const Json& in) {
    backend.setEventsStatus(in.at("status").get<int>());
    return done;
}

// {"ahead":3600}: how far the clock of the replies is ahead, in seconds.
Json setClock(Backend& backend, const Json& in) {
    backend.clockAhead = in.at("ahead").get<std::int64_t>();
    return done;
}

// A page over the world is called under its lock.
template <Json (*Page)(World&, const Json&)>
Json locked(Backend& backend, const Json& in) {
    return backend.withWorld([&](World& world) { return Page(world, in); });
}

struct Route {
    std::string_view verb;
    std::string_view path;
    Json (*page)(Backend& backend, const Json& in);
};

constexpr std::array routes{
    Route{"GET", "/sandbox/view.json",
          [](Backend& backend, const Json&) { return backend.withWorld(viewJson); }},
    Route{"GET", "/sandbox/requests", requests},
    Route{"POST", "/sandbox/requests/clear", clearRequests},
    Route{"POST", "/sandbox/fail", fail},
    Route{"POST", "/sandbox/fail/clear", clearFaults},
    Route{"POST", "/sandbox/says", locked<says>},
    Route{"POST", "/sandbox/group", locked<addGroup>},
    Route{"POST", "/sandbox/group/change", locked<changeGroup>},
    Route{"POST", "/sandbox/group/migrate", locked<migrate>},
    Route{"POST", "/sandbox/topics/delete", locked<deleteTopic>},
    Route{"POST", "/sandbox/bot", locked<addBot>},
    Route{"GET", "/sandbox/events", events},
    Route{"POST", "/sandbox/events/status", setEventsStatus},
    Route{"POST", "/sandbox/clock", setClock},
};

} // namespace

HttpReply serveControl(Backend& backend, const HttpRequest& request) try {
    const std::string_view body = request.body.view();
    if (request.verb == "GET" && request.path == "/sandbox/view")
        return {200, "text/plain; charset=utf-8", backend.withWorld(viewText)};
    for (const Route& route : routes) {
        if (route.path == request.path && route.verb == request.verb) {
            const Json in = body.empty() ? Json::object() : Json::parse(body);
            return {200, "application/json", dumped(route.page(backend, in), 2) + '\n'};
        }
    }
    return {404, "application/json", "{\"error\":\"no such page\"}\n"};
} catch (const std::exception& error) {
    return {400, "application/json", dumped(Json{{"error", error.what()}}) + '\n'};
}

} // namespace quillon::sandbox
