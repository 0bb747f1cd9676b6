// The Bot API methods that the sandbox answers.
#pragma once

#include "sandbox/Json.h"
#include "sandbox/Parameters.h"
#include "sandbox/World.h"

#include <condition_variable>
#include <mutex>
#include <string_view>

namespace quillon::sandbox {

/// One call: who calls, with what, and the world it acts on (locked by `lock`).
struct MethodCall {
    World& world;
    Bot& bot;
    const Parameters& parameters;
    std::unique_lock<std::mutex>& lock;
    std::condition_variable& changed; ///< told of whatever may end a long poll
    const bool& stopping;
};

/// Gives the "result"; throws ApiError.
using Method = Json (*)(MethodCall& call);

/// By its name in any case; null when there is no such method.
Method findMethod(std::string_view name);

Json sendMessage(MethodCall& call);
Json sendPhoto(MethodCall& call);
Json sendDocument(MethodCall& call);
Json createForumTopic(MethodCall& call);
Json editForumTopic(MethodCall& call);
Json deleteForumTopic(MethodCall& call);

/// The chat that "chat_id" names, of which the bot must be a member. Throws ApiError.
Chat& chatOf(MethodCall& call);
/// The same for calls that change something: a group that became a supergroup is refused.
Chat& writableChatOf(MethodCall& call);

} // namespace quillon::sandbox
