// The sandbox's Telegram: bots, groups with their topics, one user, and the messages between them.
// Not thread-safe: the owner must lock it.
#pragma once

#include "sandbox/HtmlEntities.h"
#include "sandbox/Json.h"
#include "sandbox/Updates.h"

#include <cstdint>
#include <deque>
#include <future>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace quillon::sandbox {

enum class ChatKind { privateChat, group, supergroup };

enum class BotRole { absent, kicked, restricted, member, admin, topicAdmin };

struct Bot {
    std::int64_t id = 0; ///< the number before the token's colon
    std::string token;
    std::string firstName;
    std::string username; ///< empty for a bot without one
    UpdateQueue updates;
};

struct Topic {
    std::int64_t id = 0; ///< the message thread id: the id of the message that made the topic
    std::string name;
    int iconColor = 0;
    std::int64_t creator = 0;
    bool deleted = false;
};

/// A message as the phone shows it; `kind` is "text", "photo", "document", "video", "animation" or
/// "service".
struct Message {
    std::int64_t id = 0;
    std::int64_t topic = 0; ///< 0 for the General topic and for groups without topics
    std::int64_t sender = 0;
    std::int64_t date = 0; ///< seconds since 1970
    std::string kind = "text";
    FormattedText text; ///< or the caption
    std::string filename;
    std::string mime;
    std::size_t size = 0;
    int width = 0;
    int height = 0;
    std::shared_future<std::string> sha256;
    Json service = nullptr; ///< a service message's own member, such as {"forum_topic_created":{…}}
};

struct Chat {
    std::int64_t id = 0;
    ChatKind kind = ChatKind::supergroup;
    std::string title;
    bool forum = false;
    std::int64_t migratedTo = 0;
    std::int64_t lastMessage = 0;
    std::map<std::int64_t, BotRole> roles; ///< by bot id; BotRole::absent for those not listed
    std::vector<Topic> topics;             ///< including deleted ones
    std::vector<Message> messages;

    Topic* topic(std::int64_t topicId); ///< null when unknown or deleted
    BotRole role(std::int64_t botId) const;
};

struct GroupOptions {
    std::string title = "Family";
    std::int64_t id = 0; ///< 0 for one that fits the kind
    ChatKind kind = ChatKind::supergroup;
    bool forum = true;
    BotRole bot = BotRole::topicAdmin; ///< of every bot that exists when the group is made
};

class World {
public:
    static constexpr std::int64_t userId = 5'000'000'001; // user ids exceed 32 bits too

    Bot& addBot(const std::string& token, const std::string& username);
    Bot* bot(std::string_view token);

    Chat& addGroup(const GroupOptions& options);
    Chat* chat(std::int64_t id);
    /// Throws std::out_of_range when there is no such chat.
    Chat& knownChat(std::int64_t id);
    const std::deque<Chat>& chats() const { return chats_; }

    void setRole(Chat& chat, Bot& bot, BotRole role);
    void setRoleOfAll(Chat& chat, BotRole role);
    std::int64_t userSays(Chat& chat, const std::string& text, std::int64_t topic);
    /// Says the text in the user's private chat with the bot, which is begun if necessary.
    std::int64_t userSaysTo(Bot& bot, const std::string& text);
    /// Turns a basic group into a supergroup; returns the new one.
    Chat& migrate(Chat& chat, bool forum);

    /// `by` is a bot's id or the user's.
    Topic& createTopic(Chat& chat, const std::string& name, int iconColor, std::int64_t by);
    void renameTopic(Chat& chat, Topic& topic, const std::string& name, std::int64_t by);
    /// Deletes the topic with its messages; there is no update about that.
    void deleteTopic(Chat& chat, std::int64_t topicId);

    /// Sets the message's id and date, stores it, and sends updates to the bots that may see it.
    Message& post(Chat& chat, Message message);

    Json userJson(std::int64_t id) const;
    Json messageJson(const Chat& chat, const Message& message, bool withReply = true) const;
    /// The Bot API's "ChatMember".
    Json memberJson(const Bot& bot, BotRole role) const;

private:
    void announce(const Chat& chat, const Message& message);

    std::deque<Bot> bots_;
    std::deque<Chat> chats_;
    int groupsMade_ = 0;
};

/// The "chat" member of updates and messages; "is_forum" only when topics are on.
Json chatJson(const Chat& chat);

std::string_view kindName(ChatKind kind);

} // namespace quillon::sandbox
