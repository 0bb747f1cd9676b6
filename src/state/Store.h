#pragma once

#include "platform/SecretStore.h"
#include "state/ActionQueue.h"
#include "state/Config.h"
#include "state/Recipient.h"
#include "state/SendInfo.h"
#include "state/Sent.h"
#include "telegram/Telegram.h"

#include <QCoroTask>
#include <QObject>

#include <functional>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

class Banner;
class Hotkey;
struct BannerMessage;
struct Platform;

/// The bot token's place in the keyring, the only place where it persists.
[[nodiscard]] const KeychainItem& botTokenItem();

/// The application's state for the life of the process: settings, history and the flags that views
/// show, saved as they change, and the actions on them. Each action is defined in the folder that
/// owns the behaviour. Lives on the main thread and outlives every action.
class Store : public QObject {
    Q_OBJECT

public:
    /// A step of the setup that the user has finished.
    enum class SetupStep { botConnected, groupFound, topicsCreated, topicsReused };

    /// Creates the data folder and loads settings and history from it; a file that cannot be read
    /// counts as missing, and none is written. Asks the keyring whether a token is stored. Banner
    /// and hot key outlive the store.
    Store(Platform& platform, Banner& banner, Hotkey& hotkey);

    [[nodiscard]] const Config& config() const { return config_; }
    /// Replaces the settings: announces the change before and after, and saves config.json.
    void setConfig(Config config);
    /// Changes the settings in place, as setConfig does.
    void changeConfig(const std::function<void(Config&)>& change);

    /// Takes over the settings that somebody else has written to config.json; what cannot be read
    /// changes nothing. False while an action is at work, which they would change under its hands:
    /// ask again later.
    bool rereadConfig();

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
    [[nodiscard]] bool persists() const { return persist_; }

    /// Registers the shortcut of the settings in place of the one before. shortcutTaken() tells
    /// whether that worked, and shortcutPressed() announces each press.
    void registerShortcut();
    /// Has the desktop open the program at login, or stop doing so. Reports no failure:
    /// launchAtLogin() tells the result.
    void setLaunchAtLogin(bool opens);

    /// Sends what is on the clipboard. Reports by banner, sound and history; never throws. Ignored
    /// while another send runs. `progress` is told on the main thread how far an upload has come.
    /// After a request to stop, no further item is sent.
    [[nodiscard]] QCoro::Task<> sendClipboard(Trigger via, SendProgress progress = {},
                                              std::stop_token stop = {});

    // The actions of the setup. One works at a time, the others wait for it in their order.

    /// Checks the token with Telegram, stores it and gives the bot's name. Throws TelegramError.
    [[nodiscard]] QCoro::Task<std::string> connectBot(std::string token);
    /// Removes the token and everything learnt about the group. The state changes at once; the task
    /// ends when the keyring has answered, with whether the keyring holds no token now.
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

    // What happened, just after it did.
    void configChanged(const Config& old, const Config& now);
    void launchAtLoginChanged(bool opens);
    void shortcutPressed();
    void setupStepDone(Store::SetupStep step);
    /// A send has ended; one record for each item, in the order sent.
    void sent(const std::vector<SendInfo>& items, Trigger via);
    /// There was nothing to send with, since the setup is not finished.
    void sendRefused();

private:
    void load();
    void save(std::string_view file, const std::string& content) const;
    void saveHistory() const;
    template <typename T>
    void publish(T& field, T value);

    /// A client for the stored token, read from the keyring on first use; none without a token.
    [[nodiscard]] QCoro::Task<std::optional<Telegram>> telegram();
    [[nodiscard]] Telegram telegramFor(std::string token) const;
    /// Where to send to now; none while the setup is not finished.
    [[nodiscard]] QCoro::Task<std::optional<Recipient>> recipient();

    void refuseToSend();
    /// Puts the entries of one send, in the order sent, into the history, the last one first.
    void addToHistory(const std::vector<Sent>& entries);
    void reportOutcome(const std::vector<Sent>& entries);
    /// Shows the message where the settings want the banner.
    void show(BannerMessage message);

    Platform& platform_;
    Banner& banner_;
    Hotkey& hotkey_;
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
    ActionQueue setupActions_;
    bool shortcutTaken_ = false;
    bool started_ = false;
};

} // namespace quillon
