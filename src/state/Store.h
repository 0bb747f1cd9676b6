#pragma once

#include "platform/SecretStore.h"
#include "state/Config.h"
#include "state/Sent.h"
#include "telegram/Telegram.h"

#include <QCoroTask>
#include <QObject>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillon {

class Analytics;
class Banner;
class Hotkey;
struct Platform;

/// The bot token's place in the keyring, the only place where it persists.
[[nodiscard]] const KeychainItem& botTokenItem();

/// The application's state for the life of the process: settings, history and the flags that views
/// show, saved as they change, and the actions on them. Each action is defined in the folder that
/// owns the behaviour. Lives on the main thread and outlives every action.
class Store : public QObject {
    Q_OBJECT

public:
    /// What one item's send looked like, for the usage events alone.
    struct SendInfo {
        /// "text", "image", "video" or "file".
        std::string kind;
        /// UTF-8 length of a text, length of the PNG data, or size of a file; 0 for a folder or a
        /// file that could not be read.
        std::int64_t bytes = 0;
        /// Absent when sent, else "folder", "unreadable", "too_big", "no_internet" or
        /// "telegram_error".
        std::optional<std::string> reason;

        bool operator==(const SendInfo&) const = default;
    };

    /// What sending one item came to.
    using Item = std::pair<Sent, SendInfo>;

    /// Creates the data folder and loads settings and history from it. What cannot be read has its
    /// default; nothing is written. Asks the keyring whether a token is stored.
    Store(Platform& platform, Analytics& analytics, Banner& banner);

    [[nodiscard]] const Config& config() const { return config_; }
    /// Replaces the settings: announces, saves config.json, reports changed settings.
    void setConfig(Config config);
    /// Changes the settings in place, as setConfig does.
    void changeConfig(const std::function<void(Config&)>& change);

    /// Newest first.
    [[nodiscard]] const std::vector<Sent>& history() const { return history_; }
    /// True while a send runs.
    [[nodiscard]] bool busy() const { return busy_; }
    /// True once a bot token is stored.
    [[nodiscard]] bool tokenSaved() const { return tokenSaved_; }
    /// The group is known and every topic has its thread.
    [[nodiscard]] bool isConnected() const;
    /// Connected, with a bot token: sending can work.
    [[nodiscard]] bool isReady() const;

    /// Another program has the shortcut, so that it does not work.
    [[nodiscard]] bool shortcutTaken() const { return shortcutTaken_; }
    /// Whether start-up has registered the shortcut, which it does once.
    [[nodiscard]] bool started() const { return started_; }
    void setStarted() { started_ = true; }
    /// Whether the program opens when the user logs in; asks the desktop each time.
    [[nodiscard]] bool launchAtLogin() const;

    /// Ends all writing for good, before the application's data is removed.
    void stopPersisting() { persist_ = false; }
    /// Whoever wants to show how far an upload has come; told on the main thread.
    void setSendProgress(SendProgress progress) { sendProgress_ = std::move(progress); }

    /// Makes the shortcut of the settings the one that sends, and tells by shortcutTaken() whether
    /// that worked.
    void registerShortcut();
    /// Has the desktop open the program at login, or no longer. A failure passes in silence:
    /// launchAtLogin() tells what it came to.
    void setLaunchAtLogin(bool opens);

    /// Sends what is on the clipboard. `via` names the trigger for the usage events: "shortcut",
    /// "button" or "command". Reports by banner, sound and history; never throws. Ignored while
    /// another send runs.
    [[nodiscard]] QCoro::Task<> sendClipboard(std::string via);

    /// Checks the token with Telegram, stores it and gives the bot's name. Throws TelegramError.
    [[nodiscard]] QCoro::Task<std::string> connectBot(std::string token);
    /// Removes the token and everything learnt about the group. Ends when the keyring has answered,
    /// with whether it holds none now; the state has changed before.
    [[nodiscard]] QCoro::Task<bool> forgetBot();
    /// Finds the group in the bot's recent updates. Throws TelegramError.
    [[nodiscard]] QCoro::Task<> findGroup();
    /// Gives every topic its thread: one found in the group again, or a new one. Throws
    /// TelegramError; threads found before stay stored.
    [[nodiscard]] QCoro::Task<> createTopics();
    /// Gives the forum topics the names they have here. Throws TelegramError.
    [[nodiscard]] QCoro::Task<> renameTopics();

Q_SIGNALS:
    /// A published field is about to change.
    void objectWillChange();

private:
    void load();
    void save(std::string_view file, const std::string& content) const;
    void saveHistory() const;
    template <typename T>
    void publish(T& field, T value);

    /// The first topic with the key; the first topic when none has it. A list without any topic
    /// (only a hand-edited config.json has one) gives the default topic of that key, which has no
    /// thread: what is sent there goes to the group's general topic.
    [[nodiscard]] Topic topicFor(std::string_view key) const;
    /// A client for the stored token, read from the keyring on first use; none without a token.
    [[nodiscard]] QCoro::Task<std::optional<Telegram>> telegram();
    [[nodiscard]] Telegram telegramFor(std::string token) const;

    [[nodiscard]] QCoro::Task<Item> sendText(std::string text, Telegram tg, std::int64_t chat);
    [[nodiscard]] QCoro::Task<Item> sendImage(QByteArray png, std::optional<std::string> text,
                                              Telegram tg, std::int64_t chat);
    [[nodiscard]] QCoro::Task<Item> sendFile(std::filesystem::path path, Telegram tg,
                                             std::int64_t chat);
    /// Makes one call; gives what went wrong.
    [[nodiscard]] QCoro::Task<std::optional<TelegramError>>
    failureOf(Telegram tg, std::string method, Json params, std::optional<Upload> upload);
    void refuseToSend();
    void finishSend(std::vector<Item> items, const std::string& via);
    void reportOutcome(const std::vector<Sent>& entries);

    /// Hooks that turn changes and sends into usage events.
    void trackSettings(const Config& old);
    void trackSend(const std::vector<SendInfo>& items, const std::string& via);
    void trackLaunchAtLogin(bool opens);

    Platform& platform_;
    Analytics& analytics_;
    Banner& banner_;
    Config config_;
    std::vector<Sent> history_;
    bool busy_ = false;
    bool tokenSaved_ = false;
    bool persist_ = true;
    /// A send has begun but is not yet busy: it still asks the keyring or reads the clipboard.
    bool preparing_ = false;
    std::optional<std::string> cachedToken_;
    /// Grows whenever the user connects or forgets a bot.
    int tokenChanges_ = 0;
    SendProgress sendProgress_;
    /// Shared only because it is not known here how to delete one.
    std::shared_ptr<Hotkey> hotkey_;
    bool shortcutTaken_ = false;
    bool started_ = false;
};

} // namespace quillon
