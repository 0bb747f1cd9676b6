#include "sandbox/Methods.h"

#include "sandbox/ApiError.h"
#include "sandbox/Text.h"

#include <algorithm>
#include <chrono>
#include <map>

namespace quillon::sandbox {

namespace {

constexpr std::int64_t mostUpdates = 100;
constexpr std::int64_t longestPoll = 50; // seconds

Json getMe(MethodCall& call) {
    Json me = call.world.userJson(call.bot.id);
    me["can_join_groups"] = true;
    me["can_read_all_group_messages"] = false;
    me["supports_inline_queries"] = false;
    return me;
}

Json getUpdates(MethodCall& call) {
    UpdateQueue& updates = call.bot.updates;
    const auto offset = call.parameters.integer("offset").value_or(0);
    const auto limit = std::clamp<std::int64_t>(
        call.parameters.integer("limit").value_or(mostUpdates), 1, mostUpdates);
    const auto timeout =
        std::clamp<std::int64_t>(call.parameters.integer("timeout").value_or(0), 0, longestPoll);
    updates.allow(call.parameters.text("allowed_updates"));
    const auto poll = ++updates.polls;
    call.changed.notify_all();
    const auto over = [&] { return call.stopping || updates.polls != poll || updates.has(offset); };
    if (timeout > 0) call.changed.wait_for(call.lock, std::chrono::seconds{timeout}, over);
    if (updates.polls != poll) {
        throw ApiError{409, "Conflict: terminated by other getUpdates request; make sure that "
                            "only one bot instance is running"};
    }
    return updates.take(offset, static_cast<std::size_t>(limit));
}

Json getChat(MethodCall& call) {
    const Chat& chat = chatOf(call, false);
    Json json = chatJson(chat);
    json.erase("all_members_are_administrators");
    if (chat.kind != ChatKind::privateChat) {
        json["permissions"] = {{"can_send_messages", true},
                               {"can_send_photos", true},
                               {"can_send_documents", true},
                               {"can_manage_topics", false}};
    }
    json["max_reaction_count"] = 11;
    json["accent_color_id"] = 2;
    return json;
}

Json getChatMember(MethodCall& call) {
    const Chat& chat = chatOf(call, false);
    const auto user = call.parameters.integer("user_id").value_or(0);
    if (user <= 0) throw badRequest("invalid user_id specified");
    if (user == call.bot.id) return call.world.memberJson(call.bot, chat.role(user));
    if (user != World::userId) throw badRequest("member not found");
    return {{"user", call.world.userJson(user)}, {"status", "creator"}, {"is_anonymous", false}};
}

} // namespace

Chat& chatOf(MethodCall& call, bool toWrite) {
    const std::string id = call.parameters.text("chat_id");
    if (id.empty()) throw badRequest("chat_id is empty");
    const auto number = call.parameters.integer("chat_id");
    Chat* const chat = number ? call.world.chat(*number) : nullptr;
    const bool known = chat != nullptr && chat->roles.contains(call.bot.id);
    if (!known) throw badRequest("chat not found");
    if (toWrite && chat->migratedTo != 0) {
        throw ApiError{400,
                       "Bad Request: group chat was upgraded to a supergroup chat",
                       {{"migrate_to_chat_id", chat->migratedTo}}};
    }
    const std::string kind = std::string{kindName(chat->kind)} + " chat";
    const BotRole role = chat->role(call.bot.id);
    if (role == BotRole::kicked) throw ApiError{403, "Forbidden: bot was kicked from the " + kind};
    if (role == BotRole::absent)
        throw ApiError{403, "Forbidden: bot is not a member of the " + kind};
    return *chat;
}

Method findMethod(std::string_view name) {
    static const std::map<std::string, Method, std::less<>> methods{
        {"getme", getMe},
        {"getupdates", getUpdates},
        {"getchat", getChat},
        {"getchatmember", getChatMember},
        {"createforumtopic", createForumTopic},
        {"editforumtopic", editForumTopic},
        {"deleteforumtopic", deleteForumTopic},
        {"sendchataction", sendChatAction},
        {"sendmessage", sendMessage},
        {"sendphoto", sendPhoto},
        {"senddocument", sendDocument},
    };
    const auto found = methods.find(lowered(name));
    return found == methods.end() ? nullptr : found->second;
}

} // namespace quillon::sandbox
