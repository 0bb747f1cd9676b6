// Creating the forum topics, finding them again, and giving them new names.
#include "base/Translate.h"
#include "setup/GroupUpdates.h"
#include "state/ShownKeys.h"
#include "state/Store.h"

#include <QString>

namespace quillon {

namespace {

/// Telegram's answer to an edit that changes nothing, which proves that the topic exists.
bool saysNotModified(const TelegramError& error) {
    return QString::fromStdString(error.message).toUpper().contains(QLatin1String{"NOT_MODIFIED"});
}

/// Telegram's answers about a topic that was deleted on the phone.
bool saysGone(const TelegramError& error) {
    const QString message = QString::fromStdString(error.message).toUpper();
    return message.contains(QLatin1String{"TOPIC_ID_INVALID"}) ||
           message.contains(QLatin1String{"TOPIC_DELETED"}) ||
           message.contains(QLatin1String{"MESSAGE THREAD NOT FOUND"});
}

/// Gives the topic its name. Does not fail when it has that name already.
QCoro::Task<> editTopic(Telegram tg, std::int64_t chat, std::int64_t thread, std::string name) {
    Json params{{"chat_id", chat}, {"message_thread_id", thread}, {"name", name}};
    try {
        co_await tg.call("editForumTopic", std::move(params));
    } catch (const TelegramError& error) {
        if (!saysNotModified(error)) throw;
    }
}

/// Whether the topic's thread is gone from the group. A bot that may not edit it cannot tell.
QCoro::Task<bool> isLost(Telegram tg, std::int64_t chat, Topic topic) {
    try {
        co_await editTopic(tg, chat, topic.threadId.value_or(0), topic.name);
    } catch (const TelegramError& error) {
        if (error.cause == TelegramError::Cause::unreachable) throw;
        co_return saysGone(error);
    }
    co_return false;
}

using TopicThreads = std::map<std::string, std::int64_t>;

/// The group's topics, as far as Telegram's recent updates tell; empty when the call fails.
QCoro::Task<TopicThreads> knownTopics(Telegram tg, std::int64_t chat) {
    Json params{{"allowed_updates", Json::array({"message"})}};
    try {
        const Json updates = co_await tg.call("getUpdates", std::move(params));
        co_return topicThreads(updates, chat);
    } catch (const TelegramError&) {
        co_return {};
    }
}

/// The known thread of the name, if it still is a topic of the group.
QCoro::Task<std::optional<std::int64_t>> existingThread(Telegram tg, std::int64_t chat,
                                                        TopicThreads known, std::string name) {
    const auto found = known.find(name);
    if (found == known.end()) co_return std::nullopt;
    try {
        co_await editTopic(tg, chat, found->second, name);
    } catch (const TelegramError&) {
        co_return std::nullopt;
    }
    co_return found->second;
}

/// Creates the topic and gives its thread id, absent when the reply has none.
QCoro::Task<std::optional<std::int64_t>> createTopic(Telegram tg, std::int64_t chat, Topic topic) {
    Json params{{"chat_id", chat}, {"name", topic.name}, {"icon_color", topic.color}};
    try {
        const Json created = co_await tg.call("createForumTopic", std::move(params));
        co_return integerMember(created, "message_thread_id");
    } catch (const TelegramError&) {
        throw TelegramError{translate(
            "Setup",
            "Couldn't create topics. Make the bot an admin with “Manage Topics” and try again.")};
    }
}

std::string noGroup() {
    return translate("Setup", "Find your group first.");
}

std::string welcome(ShortcutChoice shortcut) {
    return filled(translate("Setup",
                            "✅ Quillon is connected. Press %1 on your Mac to send what you "
                            "copied."),
                  {shownKeysText(shortcut)});
}

} // namespace

QCoro::Task<> Store::createTopics() {
    const auto turn = co_await setupActions_.turn();
    const std::optional<Telegram> tg = co_await telegram();
    if (!config_.chatId) throw TelegramError{noGroup()};
    if (!tg) throw noClient(noGroup());
    const int changes = tokenChanges_;
    const std::int64_t chat = *config_.chatId;
    const TopicThreads known = co_await knownTopics(*tg, chat);
    expectSameBot(changes, noGroup());

    bool created = false;
    for (std::size_t index = 0; index < config_.topics.size(); ++index) {
        const Topic topic = config_.topics[index];
        if (topic.threadId) continue;
        std::optional<std::int64_t> thread = co_await existingThread(*tg, chat, known, topic.name);
        expectSameBot(changes, noGroup());
        if (!thread) {
            thread = co_await createTopic(*tg, chat, topic);
            expectSameBot(changes, noGroup());
            created = true;
        }
        changeConfig([&](Config& config) { config.topics.at(index).threadId = thread; });
    }
    Q_EMIT setupStepDone(created ? SetupStep::topicsCreated : SetupStep::topicsReused);
    if (!created) co_return;

    Json params{
        {"chat_id", chat},
        {"message_thread_id", topicFor(config_.topics, TopicKind::notes).threadId.value_or(0)},
        {"text", welcome(config_.shortcut)}};
    co_await tg->call("sendMessage", std::move(params));
}

QCoro::Task<> Store::dropLostTopics() {
    const auto turn = co_await setupActions_.turn();
    const std::optional<Telegram> tg = co_await telegram();
    if (!tg || !config_.chatId) co_return; // createTopics() says so
    const int changes = tokenChanges_;
    const std::int64_t chat = *config_.chatId;
    for (std::size_t index = 0; index < config_.topics.size(); ++index) {
        const Topic topic = config_.topics[index];
        if (!topic.threadId) continue;
        const bool lost = co_await isLost(*tg, chat, topic);
        if (changes != tokenChanges_) co_return;
        if (lost) changeConfig([&](Config& config) { config.topics.at(index).threadId.reset(); });
    }
}

QCoro::Task<> Store::renameTopics() {
    const auto turn = co_await setupActions_.turn();
    const std::optional<Telegram> tg = co_await telegram();
    if (!config_.chatId) co_return;
    if (!tg) {
        if (const auto problem = keyringProblem()) throw TelegramError{*problem};
        co_return;
    }
    const int changes = tokenChanges_;
    const std::int64_t chat = *config_.chatId;
    const std::vector<Topic> topics = config_.topics; // they may change meanwhile
    for (const Topic& topic : topics) {
        if (!topic.threadId) continue;
        co_await editTopic(*tg, chat, *topic.threadId, topic.name);
        if (changes != tokenChanges_) co_return;
    }
}

} // namespace quillon
