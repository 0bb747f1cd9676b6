#include "state/Store.h"

#include "base/Bytes.h"
#include "base/Translate.h"
#include "platform/FileSystem.h"
#include "platform/Platform.h"
#include "state/DataFile.h"

#include <QCoroFuture>
#include <QCoroSignal>
#include <QPointer>

#include <algorithm>
#include <chrono>
#include <utility>

namespace quillon {

namespace {

/// Who asks a keyring for longer says so.
constexpr std::chrono::milliseconds keyringLimit = std::chrono::seconds{5};

/// The file's content; none when it cannot be read or is too large to be ours.
std::optional<QByteArray> readDataFile(const Platform& platform, std::string_view file) {
    FileReading reading = platform.files.read(platform.dataFolder / file, maximumDataFileSize);
    if (reading.outcome != FileReading::Outcome::read) return std::nullopt;
    return std::move(reading.bytes);
}

} // namespace

const KeychainItem& botTokenItem() {
    static const KeychainItem item{
        .service = "quillon-telegram-token", .account = "quillon", .label = "Quillon bot token"};
    return item;
}

std::string keyringSentence(SecretAnswer answer) {
    switch (answer) {
    case SecretAnswer::found:
        return translate("Keyring",
                         "The keyring still holds the bot's token. Unlock it and try again.");
    case SecretAnswer::locked:
        return translate("Keyring", "Your keyring is locked. Unlock it and try again.");
    case SecretAnswer::none:
        return translate("Keyring",
                         "Your keyring doesn't answer. Start or unlock it and try again.");
    case SecretAnswer::absent:
        break;
    }
    return {};
}

Store::Store(Platform& platform, Banner& banner, Hotkey& hotkey)
    : platform_{platform},
      banner_{banner},
      hotkey_{hotkey} {
    load();
    const QPointer<Store> self{this};
    platform.secrets.watch([self] {
        if (self) self->askKeyring();
    });
    firstAnswer_ = platform.clock.after(keyringLimit, [this] { learn(SecretAnswer::none); });
    askKeyring();
}

void Store::load() {
    platform_.files.createFolder(platform_.dataFolder);
    if (const auto bytes = readDataFile(platform_, configFile)) {
        config_ = decodeConfig(asText(*bytes)).value_or(Config{});
    }
    if (const auto bytes = readDataFile(platform_, historyFile)) {
        history_ = decodeHistory(asText(*bytes));
    }
}

bool Store::save(std::string_view file, const std::string& content) const {
    if (!persist_) return true;
    return platform_.files.write(platform_.dataFolder / file, QByteArray::fromStdString(content));
}

void Store::saveHistory() const {
    save(historyFile, encodeHistory(history_));
}

template <typename T>
void Store::publish(T& field, T value) {
    Q_EMIT objectWillChange();
    field = std::move(value);
}

template void Store::publish(bool& field, bool value);
template void Store::publish(KeyringState& field, KeyringState value);
template void Store::publish(HotKeyState& field, HotKeyState value);

void Store::setConfig(Config config) {
    const Config previous = config_;
    publish(config_, std::move(config));
    configSaved_ = save(configFile, encodeConfig(config_));
    Q_EMIT configChanged(previous, config_);
}

bool Store::rereadConfig() {
    if (busy_ || preparing_ || setupActions_.isTaken()) return false;
    const auto bytes = readDataFile(platform_, configFile);
    std::optional<Config> read = bytes ? decodeConfig(asText(*bytes)) : std::nullopt;
    // What could not be saved is newer than the file.
    if (!persist_ || !configSaved_ || !read || *read == config_) return true;
    const Config previous = config_;
    publish(config_, *std::move(read));
    Q_EMIT configChanged(previous, config_);
    return true;
}

void Store::changeConfig(const std::function<void(Config&)>& change) {
    Config changed = config_;
    change(changed);
    setConfig(std::move(changed));
}

bool Store::isConnected() const {
    return config_.chatId && std::ranges::all_of(config_.topics, [](const Topic& topic) {
               return topic.threadId.has_value();
           });
}

bool Store::isReady() const {
    return tokenSaved_ && isConnected();
}

bool Store::mayBeReady() const {
    const bool unknown = keyring_ == KeyringState::asked || keyring_ == KeyringState::silent;
    return (tokenSaved_ || unknown) && isConnected();
}

QCoro::Task<> Store::askKeyring() {
    const QPointer<Store> self{this};
    const int changes = tokenChanges_;
    const SecretAnswer answer = co_await platform_.secrets.find(botTokenItem());
    // A token in memory needs no keyring, which may not even have it.
    if (!self || cachedToken_ || changes != tokenChanges_) co_return;
    if (tokenForgotten_) {
        // It goes as soon as that takes no password.
        if (answer == SecretAnswer::found) removeForgottenToken();
        co_return;
    }
    // That the keyring is locked stands in nobody's way until it was not unlocked for a use.
    if (answer == SecretAnswer::locked && keyring_ != KeyringState::locked) {
        publish(tokenSaved_, true);
        setKeyring(KeyringState::answers);
    } else {
        learn(answer);
    }
}

QCoro::Task<> Store::removeForgottenToken() {
    const QPointer<Store> self{this};
    const int changes = tokenChanges_;
    const SecretAnswer left = co_await platform_.secrets.remove(botTokenItem());
    if (self && changes == tokenChanges_ && left == SecretAnswer::absent) tokenForgotten_ = false;
}

void Store::learn(SecretAnswer answer) {
    switch (answer) {
    case SecretAnswer::found:
        publish(tokenSaved_, true);
        return setKeyring(KeyringState::answers);
    case SecretAnswer::locked:
        publish(tokenSaved_, true);
        return setKeyring(KeyringState::locked);
    case SecretAnswer::absent:
        publish(tokenSaved_, false);
        return setKeyring(KeyringState::answers);
    case SecretAnswer::none:
        return setKeyring(KeyringState::silent);
    }
}

void Store::setKeyring(KeyringState state) {
    publish(keyring_, state);
    if (std::exchange(firstAnswer_, nullptr)) Q_EMIT keyringAnswered();
}

QCoro::Task<> Store::keyringAsked() {
    if (!firstAnswer_) co_return;
    auto answered = qCoro(this, &Store::keyringAnswered);
    co_await answered;
}

std::optional<std::string> Store::keyringProblem() const {
    if (keyring_ == KeyringState::locked) return keyringSentence(SecretAnswer::locked);
    if (keyring_ == KeyringState::silent) return keyringSentence(SecretAnswer::none);
    return std::nullopt;
}

std::unique_ptr<Clock::Timer> Store::keyringPatience() {
    return platform_.clock.after(keyringLimit, [this] { Q_EMIT keyringSlow(); });
}

QCoro::Task<std::optional<Telegram>> Store::telegram() {
    if (!cachedToken_ && !tokenForgotten_) {
        const int changes = tokenChanges_;
        const auto patience = keyringPatience();
        SecretReading stored = co_await platform_.secrets.read(botTokenItem());
        // If the user has connected or forgotten a bot meanwhile, that is newer than this answer.
        if (changes == tokenChanges_) {
            learn(stored.answer);
            // This question stays open until a keyring that hangs recovers.
            if (stored.answer == SecretAnswer::none) askKeyring();
            tokenKept_ = stored.answer == SecretAnswer::found;
            if (tokenKept_) cachedToken_ = std::move(stored.secret);
        }
    }
    if (!cachedToken_) co_return std::nullopt;
    co_return telegramFor(*cachedToken_);
}

QCoro::Task<std::optional<Telegram>> Store::clientAtHand() {
    if (!cachedToken_) {
        const SecretAnswer answer = co_await platform_.secrets.find(botTokenItem());
        if (answer != SecretAnswer::found) co_return std::nullopt;
    }
    std::optional<Telegram> client = co_await telegram();
    co_return client;
}

QCoro::Task<std::optional<Recipient>> Store::recipient() {
    if (!isConnected()) co_return std::nullopt;
    std::optional<Telegram> client = co_await telegram();
    // The user may have forgotten or changed the group while the keyring was asked.
    if (!client || !isConnected()) co_return std::nullopt;
    co_return Recipient{
        .client = *std::move(client), .chat = *config_.chatId, .topics = config_.topics};
}

TelegramError Store::noClient(std::string otherwise) const {
    return TelegramError{keyringProblem().value_or(std::move(otherwise))};
}

void Store::expectSameBot(int change, std::string sentence) const {
    if (change != tokenChanges_) throw TelegramError{std::move(sentence)};
}

Telegram Store::telegramFor(std::string token) const {
    return {std::move(token), platform_.botApi, platform_.http, platform_.clock};
}

} // namespace quillon
