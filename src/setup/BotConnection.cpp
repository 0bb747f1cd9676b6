// Connecting the user's bot and forgetting it again.
#include "base/Text.h"
#include "base/Translate.h"
#include "platform/Platform.h"
#include "state/Store.h"

#include <QCoroFuture>

namespace quillon {

namespace {

void clearGroup(Config& config) {
    config.chatId.reset();
    config.chatTitle.reset();
    config.topics = Topic::defaults();
}

} // namespace

QCoro::Task<std::string> Store::connectBot(std::string pasted) {
    const auto turn = co_await setupActions_.turn();
    const std::string token{trimmed(pasted)};
    if (token.find(':') == token.npos) {
        throw TelegramError{translate(
            "Setup", "That doesn't look like a bot token. It looks like 123456:ABC-DEF…")};
    }
    const Telegram tg = telegramFor(token);
    int changes = tokenChanges_;
    const Json me = co_await tg.call("getMe", Json::object());
    expectSameBot(changes, translate("Setup", "The bot was forgotten meanwhile."));
    const std::string name = textMember(me, "username").value_or("your bot");

    // The state changes at once, so that nothing else comes in between; the keyring follows. If it
    // refuses, the token stays in memory for this run.
    const QFuture<bool> saved = platform_.secrets.save(botTokenItem(), token);
    cachedToken_ = token;
    tokenForgotten_ = false;
    changes = ++tokenChanges_;
    publish(tokenSaved_, true);
    setKeyring(KeyringState::answers);
    // No bot may delete what another has sent.
    if (config_.botName != name) forgetLastSend();
    changeConfig([&name](Config& config) { config.botName = name; });
    Q_EMIT setupStepDone(SetupStep::botConnected);
    const auto patience = keyringPatience();
    const bool kept = co_await saved;
    if (changes == tokenChanges_) tokenKept_ = kept;
    co_return name;
}

void Store::forgetBot() {
    // Before the change is announced, so that nobody asks the keyring for the token again.
    tokenForgotten_ = true;
    clearBot();
    removeForgottenToken();
}

QCoro::Task<> Store::forgetBotAndToken() {
    const int changes = tokenChanges_;
    const auto patience = keyringPatience();
    const SecretAnswer left = co_await platform_.secrets.remove(botTokenItem());
    const bool inMemoryAlone = cachedToken_ && !tokenKept_ && left == SecretAnswer::none;
    if (left != SecretAnswer::absent && !inMemoryAlone) {
        if (!cachedToken_) learn(left);
        if (left == SecretAnswer::none) askKeyring();
        throw TelegramError{keyringSentence(left)};
    }
    // A bot that was connected meanwhile stays, but not the group of the one before.
    if (changes == tokenChanges_) {
        clearBot();
        co_return;
    }
    ++tokenChanges_;
    changeConfig(clearGroup);
}

void Store::clearBot() {
    ++tokenChanges_;
    cachedToken_.reset();
    tokenKept_ = false;
    publish(tokenSaved_, false);
    setKeyring(KeyringState::answers);
    forgetLastSend();
    changeConfig([](Config& config) {
        clearGroup(config);
        config.botName.reset();
    });
}

} // namespace quillon
