// Finding the user's group through the bot's recent updates.
#include "base/Translate.h"
#include "setup/GroupUpdates.h"
#include "state/Store.h"

namespace quillon {

namespace {

std::string noBot() {
    return translate("Setup", "Connect your bot first.");
}

std::string noGroup() {
    return translate("Setup", "No group found yet. Add the bot to your group, then send “hi” in "
                              "the group and try again.");
}

std::string topicsAreOff(const Json& chat) {
    return filled(translate("Setup", "Found “%1”, but Topics are off. Turn on Topics in the group "
                                     "settings."),
                  {textMember(chat, "title").value_or(translate("Setup", "your group"))});
}

} // namespace

QCoro::Task<> Store::findGroup() {
    const auto turn = co_await setupActions_.turn();
    const std::optional<Telegram> tg = co_await telegram();
    if (!tg) throw noClient(noBot());
    const int changes = tokenChanges_;

    // No offset is given, so the updates stay with Telegram for createTopics() to read again.
    Json params{{"allowed_updates", Json::array({"message", "my_chat_member"})}};
    const Json updates = co_await tg->call("getUpdates", std::move(params));
    expectSameBot(changes, noBot());
    const std::optional<std::int64_t> group = latestGroup(updates);
    if (!group) throw TelegramError{noGroup()};

    Json question{{"chat_id", *group}};
    const Json chat = co_await tg->call("getChat", std::move(question));
    expectSameBot(changes, noBot());
    if (!isTrue(chat, "is_forum")) throw TelegramError{topicsAreOff(chat)};

    changeConfig([&](Config& config) {
        if (config.chatId != group) {
            for (Topic& topic : config.topics) {
                topic.threadId.reset();
            }
        }
        config.chatId = group;
        config.chatTitle = textMember(chat, "title");
    });
    Q_EMIT setupStepDone(SetupStep::groupFound);
}

} // namespace quillon
