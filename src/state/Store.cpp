#include "state/Store.h"

#include "base/Bytes.h"
#include "platform/FileSystem.h"
#include "platform/Platform.h"
#include "state/DataFile.h"

#include <QCoroFuture>

#include <algorithm>

namespace quillon {

namespace {

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

Store::Store(Platform& platform, Banner& banner, Hotkey& hotkey)
    : platform_{platform},
      banner_{banner},
      hotkey_{hotkey},
      tokenSaved_{platform.secrets.exists(botTokenItem())} {
    load();
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

void Store::save(std::string_view file, const std::string& content) const {
    if (!persist_) return;
    platform_.files.write(platform_.dataFolder / file, QByteArray::fromStdString(content));
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
template void Store::publish(std::vector<Sent>& field, std::vector<Sent> value);

void Store::setConfig(Config config) {
    const Config previous = config_;
    publish(config_, std::move(config));
    save(configFile, encodeConfig(config_));
    Q_EMIT configChanged(previous, config_);
}

bool Store::rereadConfig() {
    if (busy_ || preparing_ || setupActions_.isTaken()) return false;
    const auto bytes = readDataFile(platform_, configFile);
    std::optional<Config> read = bytes ? decodeConfig(asText(*bytes)) : std::nullopt;
    if (!persist_ || !read || *read == config_) return true;
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

QCoro::Task<std::optional<Telegram>> Store::telegram() {
    if (!cachedToken_) {
        const int changes = tokenChanges_;
        std::optional<std::string> stored = co_await platform_.secrets.read(botTokenItem());
        // If the user has connected or forgotten a bot meanwhile, that is newer than this answer.
        if (changes == tokenChanges_) cachedToken_ = std::move(stored);
    }
    if (!cachedToken_) co_return std::nullopt;
    co_return telegramFor(*cachedToken_);
}

QCoro::Task<std::optional<Recipient>> Store::recipient() {
    if (!isReady()) co_return std::nullopt;
    std::optional<Telegram> client = co_await telegram();
    // The user may have forgotten the group while the keyring was asked.
    if (!client || !config_.chatId) co_return std::nullopt;
    co_return Recipient{
        .client = *std::move(client), .chat = *config_.chatId, .topics = config_.topics};
}

Telegram Store::telegramFor(std::string token) const {
    return {std::move(token), platform_.botApi, platform_.http, platform_.clock};
}

} // namespace quillon
