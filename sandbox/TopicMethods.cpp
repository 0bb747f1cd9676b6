// createForumTopic, editForumTopic and deleteForumTopic.
#include "sandbox/ApiError.h"
#include "sandbox/Methods.h"
#include "sandbox/Text.h"

#include <algorithm>
#include <array>

namespace quillon::sandbox {

namespace {

// Bot API, createForumTopic: 1 to 128 characters; a longer name is cut, as titles of chats are.
constexpr std::size_t longestName = 128;

// Bot API, createForumTopic: the colours an icon may have.
constexpr std::array<std::int64_t, 6> iconColors{7322096, 16766590, 13338331,
                                                 9367192, 16749490, 16478047};

Chat& forumOf(MethodCall& call) {
    Chat& chat = chatOf(call);
    if (!chat.forum) throw badRequest("the chat is not a forum");
    return chat;
}

std::string nameOf(const MethodCall& call) {
    const std::string name = call.parameters.text("name");
    if (!isUtf8(name)) throw badRequest("strings must be encoded in UTF-8");
    return cleanedName(name, longestName);
}

Topic& topicOf(const MethodCall& call, Chat& chat) {
    const auto id = call.parameters.integer("message_thread_id").value_or(0);
    if (id <= 0) throw badRequest("invalid message thread identifier specified");
    if (Topic* const topic = chat.topic(id)) return *topic;
    throw badRequest("TOPIC_ID_INVALID");
}

bool mayManage(const MethodCall& call, const Chat& chat) {
    return chat.role(call.bot.id) == BotRole::topicAdmin;
}

} // namespace

Json createForumTopic(MethodCall& call) {
    Chat& chat = forumOf(call);
    if (!mayManage(call, chat)) throw badRequest("not enough rights to create a topic");
    const std::string name = nameOf(call);
    if (name.empty()) throw badRequest("title must be non-empty");
    std::int64_t color = iconColors.front();
    if (!call.parameters.text("icon_color").empty())
        color = call.parameters.integer("icon_color").value_or(-1);
    if (std::ranges::find(iconColors, color) == iconColors.end())
        throw badRequest("invalid icon color specified");
    const Topic& topic = call.world.createTopic(chat, name, static_cast<int>(color), call.bot.id);
    call.changed.notify_all();
    return {{"message_thread_id", topic.id}, {"name", topic.name}, {"icon_color", topic.iconColor}};
}

Json editForumTopic(MethodCall& call) {
    Chat& chat = forumOf(call);
    Topic& topic = topicOf(call, chat);
    if (!mayManage(call, chat) && topic.creator != call.bot.id)
        throw badRequest("not enough rights to edit the topic");
    const std::string name = nameOf(call);
    if (name.empty()) return true;
    if (name == topic.name) throw badRequest("TOPIC_NOT_MODIFIED");
    call.world.renameTopic(chat, topic, name, call.bot.id);
    call.changed.notify_all();
    return true;
}

Json deleteForumTopic(MethodCall& call) {
    Chat& chat = forumOf(call);
    const Topic& topic = topicOf(call, chat);
    if (!mayManage(call, chat) && topic.creator != call.bot.id)
        throw badRequest("not enough rights to delete the topic");
    call.world.deleteTopic(chat, topic.id);
    return true;
}

} // namespace quillon::sandbox
