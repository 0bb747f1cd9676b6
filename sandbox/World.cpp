#include "sandbox/World.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <stdexcept>

namespace quillon::sandbox {

namespace {

// Basic groups have small negative ids. A supergroup's id is −100… followed by its own number,
// which long exceeds 32 bits.
constexpr std::int64_t firstGroupId = -4'123'456'789;
constexpr std::int64_t firstSupergroupId = -1'001'234'567'890;
constexpr std::int64_t idStep = 111'111'113;

// In the order of BotRole.
constexpr std::array<std::string_view, 6> statusNames{"left",   "kicked",        "restricted",
                                                      "member", "administrator", "administrator"};

bool isIn(BotRole role) {
    return role != BotRole::absent && role != BotRole::kicked;
}

Message serviceMessage(std::int64_t sender, Json service, std::int64_t topic = 0) {
    Message message;
    message.topic = topic;
    message.sender = sender;
    message.kind = "service";
    message.service = std::move(service);
    return message;
}

} // namespace

std::string_view kindName(ChatKind kind) {
    constexpr std::array<std::string_view, 3> names{"private", "group", "supergroup"};
    return names.at(static_cast<std::size_t>(kind));
}

Topic* Chat::topic(std::int64_t topicId) {
    const auto found = std::ranges::find_if(topics, [&](const Topic& candidate) {
        return candidate.id == topicId && !candidate.deleted;
    });
    return found == topics.end() ? nullptr : &*found;
}

BotRole Chat::role(std::int64_t botId) const {
    const auto found = roles.find(botId);
    return found == roles.end() ? BotRole::absent : found->second;
}

Bot& World::addBot(const std::string& token, const std::string& username) {
    if (Bot* const known = bot(token)) {
        known->username = username;
        return *known;
    }
    return bots_.emplace_back(Bot{std::stoll(token), token, "Quillon", username, {}});
}

Bot* World::bot(std::string_view token) {
    const auto found = std::ranges::find(bots_, token, &Bot::token);
    return found == bots_.end() ? nullptr : &*found;
}

Chat& World::addGroup(const GroupOptions& options) {
    const bool super = options.kind == ChatKind::supergroup;
    const auto id = (super ? firstSupergroupId : firstGroupId) - idStep * groupsMade_++;
    Chat& chat = chats_.emplace_back();
    chat.id = options.id != 0 ? options.id : id;
    chat.kind = options.kind;
    chat.title = options.title;
    chat.forum = super && options.forum;
    if (options.bot != BotRole::absent) setRoleOfAll(chat, options.bot);
    return chat;
}

Chat* World::chat(std::int64_t id) {
    const auto found = std::ranges::find(chats_, id, &Chat::id);
    return found == chats_.end() ? nullptr : &*found;
}

Chat& World::knownChat(std::int64_t id) {
    if (Chat* const found = chat(id)) return *found;
    throw std::out_of_range{"no such chat"};
}

void World::setRole(Chat& chat, Bot& bot, BotRole role) {
    const BotRole old = chat.role(bot.id);
    if (old == role) return;
    chat.roles[bot.id] = role;
    bot.updates.push("my_chat_member", {{"chat", chatJson(chat)},
                                        {"from", userJson(userId)},
                                        {"date", now()},
                                        {"old_chat_member", memberJson(bot, old)},
                                        {"new_chat_member", memberJson(bot, role)}});
    if (isIn(old) || !isIn(role)) return;
    post(chat, serviceMessage(userId, {{"new_chat_participant", userJson(bot.id)},
                                       {"new_chat_member", userJson(bot.id)},
                                       {"new_chat_members", Json::array({userJson(bot.id)})}}));
}

void World::setRoleOfAll(Chat& chat, BotRole role) {
    for (Bot& bot : bots_)
        setRole(chat, bot, role);
}

std::int64_t World::userSays(Chat& chat, const std::string& text, std::int64_t topic) {
    if (topic != 0 && chat.topic(topic) == nullptr) throw std::out_of_range{"no such topic"};
    Message message;
    message.sender = userId;
    message.topic = topic;
    message.text.text = text;
    return post(chat, std::move(message)).id;
}

std::int64_t World::userSaysTo(Bot& bot, const std::string& text) {
    Chat* found = chat(userId);
    if (found == nullptr) {
        found = &chats_.emplace_back();
        found->id = userId;
        found->kind = ChatKind::privateChat;
    }
    found->roles[bot.id] = BotRole::member;
    return userSays(*found, text, 0);
}

Chat& World::migrate(Chat& chat, bool forum) {
    if (chat.kind != ChatKind::group) throw std::out_of_range{"not a basic group"};
    GroupOptions options{chat.title, 0, ChatKind::supergroup, forum, BotRole::absent};
    Chat& fresh = addGroup(options);
    fresh.roles = chat.roles;
    chat.migratedTo = fresh.id;
    post(chat, serviceMessage(userId, {{"migrate_to_chat_id", fresh.id}}));
    post(fresh, serviceMessage(userId, {{"migrate_from_chat_id", chat.id}}));
    return fresh;
}

Topic& World::createTopic(Chat& chat, const std::string& name, int iconColor, std::int64_t by) {
    const std::int64_t id = chat.lastMessage + 1;
    chat.topics.push_back({id, name, iconColor, by, false});
    const Json what{{"name", name}, {"icon_color", iconColor}};
    post(chat, serviceMessage(by, {{"forum_topic_created", what}}, id));
    return chat.topics.back();
}

void World::renameTopic(Chat& chat, Topic& topic, const std::string& name, std::int64_t by) {
    topic.name = name;
    const Json what{{"name", name}};
    post(chat, serviceMessage(by, {{"forum_topic_edited", what}}, topic.id));
}

void World::deleteTopic(Chat& chat, std::int64_t topicId) {
    Topic* const topic = chat.topic(topicId);
    if (topic == nullptr) throw std::out_of_range{"no such topic"};
    topic->deleted = true;
    std::erase_if(chat.messages, [&](const Message& message) { return message.topic == topicId; });
}

void World::deleteMessages(Chat& chat, const std::vector<std::int64_t>& ids) {
    std::erase_if(chat.messages, [&](const Message& message) {
        return std::ranges::find(ids, message.id) != ids.end();
    });
}

std::int64_t World::now() const {
    const auto time = std::chrono::system_clock::now().time_since_epoch() + passed_;
    return std::chrono::duration_cast<std::chrono::seconds>(time).count();
}

Message& World::post(Chat& chat, Message message) {
    message.id = ++chat.lastMessage;
    message.date = now();
    Message& kept = chat.messages.emplace_back(std::move(message));
    announce(chat, kept);
    return kept;
}

// A bot gets service messages (including its own) and the user's messages, but none of other bots.
// In a group, a bot that is no administrator gets only the user's commands, because bots have their
// privacy mode on by default.
void World::announce(const Chat& chat, const Message& message) {
    const bool service = message.kind == "service";
    for (Bot& bot : bots_) {
        const BotRole role = chat.role(bot.id);
        const bool hearsAll = chat.kind == ChatKind::privateChat || role >= BotRole::admin;
        const bool heard = service || (message.sender == userId &&
                                       (hearsAll || message.text.text.starts_with('/')));
        if (isIn(role) && heard) bot.updates.push("message", messageJson(chat, message));
    }
}

Json World::userJson(std::int64_t id) const {
    const auto found = std::ranges::find(bots_, id, &Bot::id);
    if (found == bots_.end())
        return {{"id", id}, {"is_bot", false}, {"first_name", "Robin"}, {"language_code", "en"}};
    Json json{{"id", id}, {"is_bot", true}, {"first_name", found->firstName}};
    if (!found->username.empty()) json["username"] = found->username;
    return json;
}

Json World::memberJson(const Bot& bot, BotRole role) const {
    Json json{{"user", userJson(bot.id)},
              {"status", statusNames.at(static_cast<std::size_t>(role))}};
    if (role >= BotRole::admin) {
        json["can_be_edited"] = false;
        json["can_manage_chat"] = true;
        json["can_delete_messages"] = false;
        json["can_manage_topics"] = role == BotRole::topicAdmin;
    }
    if (role == BotRole::kicked) json["until_date"] = 0;
    return json;
}

} // namespace quillon::sandbox
