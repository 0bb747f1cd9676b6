// deleteMessage and deleteMessages.
#include "sandbox/ApiError.h"
#include "sandbox/Methods.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace quillon::sandbox {

namespace {

constexpr std::int64_t deletable = 48 * 3600; // Bot API, deleteMessage: seconds
constexpr std::size_t mostMessages = 100;     // Bot API, deleteMessages

// Service messages that Telegram never lets anybody delete.
bool isBeginning(const Message& message) {
    return message.kind == "service" && (message.service.contains("forum_topic_created") ||
                                         message.service.contains("migrate_from_chat_id"));
}

// A bot may delete what it sent itself, save service messages, without any right. More takes the
// right to delete messages in a supergroup, which none of the roles here has, and in a basic group
// any administrator's place; in a private chat the user's messages may go as well.
bool mayDelete(const MethodCall& call, const Chat& chat, const Message& message) {
    if (call.world.now() - message.date >= deletable || isBeginning(message)) return false;
    if (message.sender == call.bot.id && message.kind != "service") return true;
    if (chat.kind == ChatKind::privateChat) return message.kind != "service";
    return chat.kind == ChatKind::group && chat.role(call.bot.id) >= BotRole::admin;
}

// Where others could keep their copy, Telegram says that it is about that.
ApiError refusal(const Chat& chat) {
    const bool forAll = chat.kind == ChatKind::supergroup;
    return badRequest(forAll ? "message can't be deleted"
                             : "message can't be deleted for everyone");
}

const Message* found(const Chat& chat, std::int64_t id) {
    const auto message = std::ranges::find(chat.messages, id, &Message::id);
    return message == chat.messages.end() ? nullptr : &*message;
}

std::int64_t messageId(const Json& value) {
    std::int64_t id = 0;
    if (value.is_number_integer()) id = value.get<std::int64_t>();
    if (id <= 0) throw badRequest("invalid message identifier specified");
    return id;
}

std::vector<std::int64_t> messageIds(const MethodCall& call) {
    const std::string text = call.parameters.text("message_ids");
    if (text.empty()) throw badRequest("message identifiers are not specified");
    const Json list = Json::parse(text, nullptr, false);
    if (list.is_discarded()) throw badRequest("can't parse message identifiers JSON object");
    if (!list.is_array()) throw badRequest("expected an Array of message identifiers");
    if (list.size() > mostMessages) throw badRequest("too many message identifiers specified");
    if (list.empty()) throw badRequest("message identifiers are not specified");
    std::vector<std::int64_t> ids;
    std::ranges::transform(list, std::back_inserter(ids), messageId);
    return ids;
}

} // namespace

Json deleteMessage(MethodCall& call) {
    const auto id = call.parameters.integer("message_id").value_or(0);
    if (id <= 0) throw badRequest("message identifier is not specified");
    Chat& chat = chatOf(call);
    const Message* const message = found(chat, id);
    if (message == nullptr) throw badRequest("message to delete not found");
    if (!mayDelete(call, chat, *message)) throw refusal(chat);
    call.world.deleteMessages(chat, {id});
    return true;
}

// Those that are not there are passed over. One that may not be deleted keeps all the others.
Json deleteMessages(MethodCall& call) {
    const std::vector<std::int64_t> ids = messageIds(call);
    Chat& chat = chatOf(call);
    for (const std::int64_t id : ids) {
        const Message* const message = found(chat, id);
        if (message != nullptr && !mayDelete(call, chat, *message)) throw refusal(chat);
    }
    call.world.deleteMessages(chat, ids);
    return true;
}

} // namespace quillon::sandbox
