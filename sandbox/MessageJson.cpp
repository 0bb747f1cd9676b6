// Writes chats and messages as the Bot API does.
#include "sandbox/Text.h"
#include "sandbox/World.h"

#include <algorithm>
#include <array>

namespace quillon::sandbox {

namespace {

Json entitiesJson(const FormattedText& formatted) {
    Json list = Json::array();
    const std::string_view text = formatted.text;
    for (const Entity& entity : formatted.entities) {
        Json json{{"offset", utf16Units(text.substr(0, entity.begin))},
                  {"length", utf16Units(text.substr(entity.begin, entity.end - entity.begin))},
                  {"type", entity.type}};
        if (entity.type == "text_link") json["url"] = entity.argument;
        if (entity.type == "pre" && !entity.argument.empty()) json["language"] = entity.argument;
        list.push_back(std::move(json));
    }
    return list;
}

std::string fileId(const Chat& chat, const Message& message, std::string_view variant) {
    return "BQACAgI" + std::to_string(-chat.id) + "-" + std::to_string(message.id) +
           std::string{variant};
}

// A photo is offered at the sizes that fit squares of 90, 320, 800 and 1280 pixels.
Json photoJson(const Chat& chat, const Message& message) {
    Json sizes = Json::array();
    const int longest = std::max(message.width, message.height);
    for (const auto& [letter, side] :
         std::array<std::pair<char, int>, 4>{{{'s', 90}, {'m', 320}, {'x', 800}, {'y', 1280}}}) {
        const double scale = std::min(1.0, static_cast<double>(side) / longest);
        const auto scaled = [scale](int value) {
            return std::max(1, static_cast<int>(value * scale));
        };
        const std::string id = fileId(chat, message, std::string_view{&letter, 1});
        const double bytes = static_cast<double>(message.size) * scale * scale;
        sizes.push_back({{"file_id", id},
                         {"file_unique_id", id},
                         {"file_size", static_cast<std::int64_t>(bytes)},
                         {"width", scaled(message.width)},
                         {"height", scaled(message.height)}});
        if (longest <= side) break;
    }
    return sizes;
}

Json documentJson(const Chat& chat, const Message& message) {
    const std::string id = fileId(chat, message, "d");
    Json json = Json::object();
    if (!message.filename.empty()) json["file_name"] = message.filename;
    json["mime_type"] = message.mime;
    json["file_id"] = id;
    json["file_unique_id"] = id;
    json["file_size"] = message.size;
    return json;
}

void addContent(const Chat& chat, const Message& message, Json& json) {
    if (message.kind == "service") {
        json.update(message.service);
        return;
    }
    const bool plain = message.kind == "text";
    if (message.kind == "photo") {
        json["photo"] = photoJson(chat, message);
    } else if (!plain) {
        json[message.kind] = documentJson(chat, message);
    }
    if (message.kind == "animation") json["document"] = json["animation"];
    if (!message.text.text.empty()) json[plain ? "text" : "caption"] = message.text.text;
    if (!message.text.entities.empty())
        json[plain ? "entities" : "caption_entities"] = entitiesJson(message.text);
}

} // namespace

Json chatJson(const Chat& chat) {
    Json json{{"id", chat.id}};
    if (chat.kind == ChatKind::privateChat) {
        json["first_name"] = "Robin";
    } else {
        json["title"] = chat.title;
    }
    if (chat.forum) json["is_forum"] = true;
    json["type"] = kindName(chat.kind);
    if (chat.kind == ChatKind::group) json["all_members_are_administrators"] = true;
    return json;
}

Json World::messageJson(const Chat& chat, const Message& message, bool withReply) const {
    Json json{{"message_id", message.id},
              {"from", userJson(message.sender)},
              {"chat", chatJson(chat)},
              {"date", message.date}};
    if (message.topic != 0) {
        json["message_thread_id"] = message.topic;
        // A message in a topic is a reply to the message that made the topic.
        const auto first = std::ranges::find(chat.messages, message.topic, &Message::id);
        if (withReply && first != chat.messages.end() && first->id != message.id)
            json["reply_to_message"] = messageJson(chat, *first, false);
    }
    addContent(chat, message, json);
    if (message.topic != 0) json["is_topic_message"] = true;
    return json;
}

} // namespace quillon::sandbox
