#include "setup/GroupUpdates.h"

#include <array>

namespace quillon {

namespace {

constexpr std::array updateKinds{"message", "my_chat_member"};
constexpr std::array topicEvents{"forum_topic_created", "forum_topic_edited"};

/// The id of the supergroup that the message or membership change belongs to.
std::optional<std::int64_t> supergroup(const Json& content) {
    const Json* chat = objectMember(content, "chat");
    if (chat == nullptr || textMember(*chat, "type") != "supergroup") return std::nullopt;
    return integerMember(*chat, "id");
}

bool isOfChat(const Json& message, std::int64_t id) {
    const Json* chat = objectMember(message, "chat");
    return chat != nullptr && integerMember(*chat, "id") == id;
}

} // namespace

std::optional<std::int64_t> latestGroup(const Json& updates) {
    std::optional<std::int64_t> latest;
    if (!updates.is_array()) return latest;
    for (const Json& update : updates) {
        for (const char* kind : updateKinds) {
            const Json* content = objectMember(update, kind);
            if (content == nullptr) continue;
            if (const auto id = supergroup(*content)) latest = id;
        }
        if (const Json* message = objectMember(update, "message")) {
            if (const auto id = integerMember(*message, "migrate_to_chat_id")) latest = id;
        }
    }
    return latest;
}

std::map<std::string, std::int64_t> topicThreads(const Json& updates, std::int64_t chat) {
    std::map<std::string, std::int64_t> threads;
    if (!updates.is_array()) return threads;
    for (const Json& update : updates) {
        const Json* message = objectMember(update, "message");
        if (message == nullptr || !isOfChat(*message, chat)) continue;
        const auto thread = integerMember(*message, "message_thread_id");
        if (!thread) continue;
        for (const char* kind : topicEvents) {
            const Json* event = objectMember(*message, kind);
            if (event == nullptr) continue;
            if (const auto name = textMember(*event, "name")) threads[*name] = *thread;
        }
    }
    return threads;
}

} // namespace quillon
