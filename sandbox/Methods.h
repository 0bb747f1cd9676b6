// The Bot API methods that the sandbox answers.
#pragma once

#include "sandbox/Json.h"
#include "sandbox/Parameters.h"
#include "sandbox/World.h"

#include <condition_variable>
#include <mutex>
#include <string_view>

namespace quillon::sandbox {

/// One call: the bot, the parameters, and the world it acts on (locked by `lock`).
struct MethodCall {
    World& world;
    Bot& bot;
    const Parameters& parameters;
    std::unique_lock<std::mutex>& lock;
    std::condition_variable& changed; ///< notified of everything that may end a long poll
    const bool& stopping;
};

/// Returns the "result"; throws ApiError.
using Method = Json (*)(MethodCall& call);

/// The method with this name, in upper or lower case; null if there is none.
Method findMethod(std::string_view name);

Json sendMessage(MethodCall& call);
Json sendPhoto(MethodCall& call);
Json sendDocument(MethodCall& call);
Json createForumTopic(MethodCall& call);
Json editForumTopic(MethodCall& call);
Json deleteForumTopic(MethodCall& call);
Json sendChatAction(MethodCall& call);

/// The chat that "chat_id" names, of which the bot must be a member. Throws ApiError; a group that
/// became a supergroup refuses calls that change something, `toWrite`.
Chat& chatOf(MethodCall& call, bool toWrite = true);

} // namespace quillon::sandbox
