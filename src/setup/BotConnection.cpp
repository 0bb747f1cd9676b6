// Connecting the user's bot and forgetting it again.
#include "base/Text.h"
#include "base/Translate.h"
#include "platform/Platform.h"
#include "state/Store.h"

#include <QCoroFuture>

namespace quillon {

QCoro::Task<std::string> Store::connectBot(std::string pasted) {
    const auto turn = co_await setupActions_.turn();
    const std::string token{trimmed(pasted)};
    if (token.find(':') == token.npos) {
        throw TelegramError{translate(
            "Setup", "That doesn't look like a bot token. It looks like 123456:ABC-DEF…")};
    }
    const Telegram tg = telegramFor(token);
    const Json me = co_await tg.call("getMe", Json::object());
    const std::string name = textMember(me, "username").value_or("your bot");

    // The state changes at once, so that nothing else comes in between; the keyring follows. If it
    // refuses, the token stays in memory for this run.
    const QFuture<bool> saved = platform_.secrets.save(botTokenItem(), token);
    cachedToken_ = token;
    ++tokenChanges_;
    publish(tokenSaved_, true);
    changeConfig([&name](Config& config) { config.botName = name; });
    Q_EMIT setupStepDone(SetupStep::botConnected);
    co_await saved;
    co_return name;
}

QCoro::Task<bool> Store::forgetBot() {
    const auto turn = co_await setupActions_.turn();
    const QFuture<bool> removed = platform_.secrets.remove(botTokenItem());
    cachedToken_.reset();
    ++tokenChanges_;
    publish(tokenSaved_, false);
    changeConfig([](Config& config) {
        config.chatId.reset();
        config.chatTitle.reset();
        config.botName.reset();
        config.topics = Topic::defaults();
    });
    co_return co_await removed;
}

} // namespace quillon
