#pragma once

#include "platform/Clock.h"
#include "platform/HotKeys.h"
#include "platform/SecretStore.h"
#include "state/ActionQueue.h"
#include "state/Config.h"
#include "state/Recipient.h"
#include "state/SendInfo.h"
#include "state/SendItem.h"
#include "state/Sent.h"
#include "telegram/Telegram.h"

#include <QCoroTask>
#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
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
struct RunningSend;
struct SentItem;

/// The bot token's place in the keyring, the only place where it persists.
[[nodiscard]] const KeychainItem& botTokenItem();

/// Tells the user why the token cannot be had, or not be removed; empty where it is just absent.
[[nodiscard]] std::string keyringSentence(SecretAnswer answer);

/// The application's state for the life of the process: settings, history and the flags that views
/// show, saved as they change, and the actions on them. Each action is defined in the folder that
/// owns the behaviour. Lives on the main thread and outlives every action.
class Store : public QObject {
    Q_OBJECT

public:
    /// A step of the setup that the user has finished.
    enum class SetupStep { botConnected, groupFound, topicsCreated, topicsReused };

    /// What is known of the keyring, which alone can tell whether there is a token.
    enum class KeyringState {
        asked,   ///< at the start; it has not answered yet
        answers, ///< tokenSaved() is its answer
        locked,  ///< and the user did not unlock it when the token was needed
        silent,  ///< nobody answered, so that the token may be there or not
    };

    /// Creates the data folder and loads settings and history from it; a file that cannot be read
    /// counts as missing, and none is written. Asks the keyring whether a token is stored, without
    /// waiting for the answer, and again whenever the keyring may answer differently. Banner and
    /// hot key outlive the store.
    Store(Platform& platform, Banner& banner, Hotkey& hotkey);

    [[nodiscard]] const Config& config() const { return config_; }
    /// Replaces the settings: announces the change before and after, and saves config.json.
    void setConfig(Config config);
    /// Changes the settings in place, as setConfig does.
    void changeConfig(const std::function<void(Config&)>& change);
    /// False from a change of the settings that could not be written until one that could, as on a
    /// full disk: config.json then holds the settings of before.
    [[nodiscard]] bool configSaved() const { return configSaved_; }

    /// Takes over the settings that somebody else has written to config.json; what cannot be read
    /// changes nothing. False while an action is at work, which they would change under its hands:
    /// ask again later.
    bool rereadConfig();

    /// Newest first.
    [[nodiscard]] const std::vector<Sent>& history() const { return history_; }
    /// True while a send runs.
    [[nodiscard]] bool busy() const { return busy_; }
    /// True once a bot token is stored, as the keyring last said.
    [[nodiscard]] bool tokenSaved() const { return tokenSaved_; }
    /// Whether the keyring has the token of the connected bot; else it is in memory alone.
    [[nodiscard]] bool tokenKept() const { return tokenKept_; }
    [[nodiscard]] KeyringState keyring() const { return keyring_; }
    /// Tells the user why the token cannot be had; none while nothing is known to be in the way.
    [[nodiscard]] std::optional<std::string> keyringProblem() const;
    /// Ends when the keyring has answered after the start, or has been silent for 5 seconds.
    [[nodiscard]] QCoro::Task<> keyringAsked();
    /// The group is known and every topic has its thread.
    [[nodiscard]] bool isConnected() const;
    /// Connected, with a bot token: sending can work.
    [[nodiscard]] bool isReady() const;
    /// Ready, or connected while the keyring does not tell whether there is a token. A send asks
    /// it.
    [[nodiscard]] bool mayBeReady() const;

    /// Another program has the shortcut, so that it does not work.
    [[nodiscard]] bool shortcutTaken() const { return shortcut_.kind == HotKeyState::Kind::taken; }
    /// What has become of the shortcut since it was registered.
    [[nodiscard]] const HotKeyState& shortcut() const { return shortcut_; }
    /// Whether the user has copied the command that the state of the shortcut offers, and so may
    /// have bound it where the program cannot see that.
    [[nodiscard]] bool shortcutCommandCopied() const;
    /// Whether start-up has registered the shortcut, which it does once.
    [[nodiscard]] bool started() const { return started_; }
    void setStarted() { started_ = true; }
    /// Whether the program opens when the user logs in; asks the desktop each time.
    [[nodiscard]] bool launchAtLogin() const;

    /// Ends all writing for good, before the application's data is removed.
    void stopPersisting() { persist_ = false; }
    [[nodiscard]] bool persists() const { return persist_; }

    /// A client for the bot, without asking the user for anything: none without a token, and where
    /// its keyring is locked. A keyring that hangs holds the answer open.
    [[nodiscard]] QCoro::Task<std::optional<Telegram>> clientAtHand();

    /// Registers the shortcut of the settings in place of the one before. shortcut() tells what
    /// becomes of it, and shortcutPressed() announces each press.
    void registerShortcut();
    /// Does what the state of the shortcut offers; of a command that is copied, it takes note.
    void takeShortcutOffer();
    /// Has the desktop open the program at login, or stop doing so. Reports no failure:
    /// launchAtLogin() tells the result.
    void setLaunchAtLogin(bool opens);

    /// Sends what is on the clipboard. Reports by banner, sound and history; never throws. Ignored
    /// while another send runs.
    [[nodiscard]] QCoro::Task<> sendClipboard(SendWishes wishes);
    [[nodiscard]] QCoro::Task<> sendClipboard(Trigger via);
    /// The same with these items in place of the clipboard's, which is not read. Nothing happens
    /// without any.
    [[nodiscard]] QCoro::Task<> send(std::vector<SendItem> items, SendWishes wishes);

    /// Has the send that runs, if any, send nothing more than what is on its way; the rest goes
    /// into the history as not sent.
    void stopSending();
    /// Ends sending for good, as the program quits. Turns the event loop until the send has
    /// stopped, for at most `patience`; what has not arrived by then goes into the history as not
    /// sent.
    void endSending(std::chrono::milliseconds patience);

    /// Forgets the bot and everything learnt about the group, at once; actions that work for the
    /// bot end. Never fails: a keyring that is locked loses the token when it is unlocked.
    void forgetBot();
    /// Does the same once the keyring has given up the token; else throws TelegramError, and
    /// nothing is forgotten.
    [[nodiscard]] QCoro::Task<> forgetBotAndToken();

    // The actions of the setup. One works at a time, the others wait for it in their order. All
    // throw TelegramError.

    /// Checks the token with Telegram, stores it and gives the bot's name.
    [[nodiscard]] QCoro::Task<std::string> connectBot(std::string token);
    /// Finds the group in the bot's recent updates.
    [[nodiscard]] QCoro::Task<> findGroup();
    /// Gives every topic its thread: one found in the group again, or a new one. After a failure,
    /// threads found before stay stored.
    [[nodiscard]] QCoro::Task<> createTopics();
    /// Forgets the threads of topics that were deleted on the phone, so that createTopics() makes
    /// these anew. Gives the others the names they have here, which is how it looks for them.
    [[nodiscard]] QCoro::Task<> dropLostTopics();
    /// Gives the forum topics the names they have here.
    [[nodiscard]] QCoro::Task<> renameTopics();

Q_SIGNALS:
    /// A published field is about to change.
    void objectWillChange();
    /// The keyring has answered the question of the start, or been silent for too long.
    void keyringAnswered();
    /// An action has waited for the keyring for 5 seconds, and goes on waiting: the keyring may be
    /// asking the user for its password.
    void keyringSlow();

    // What happened, just after it did.
    void configChanged(const Config& old, const Config& now);
    void launchAtLoginChanged(bool opens);
    /// `activation` is the desktop's permission to bring a window to the front; empty where there
    /// is none.
    void shortcutPressed(const std::string& activation);
    void setupStepDone(Store::SetupStep step);
    /// A send of so many items has begun.
    void sendStarted(int items);
    /// How far the upload under way has come, in bytes; ten times a second at the most.
    void sendProgressed(qint64 done, qint64 total);
    /// These items of a send have gone into the history, in the order sent.
    void recorded(const std::vector<Sent>& entries);
    /// A send has ended; all its items as they stand in the history, in the order sent.
    void sendEnded(const std::vector<Sent>& entries);
    /// The same for the usage events; one record for each item.
    void sent(const std::vector<SendInfo>& items, Trigger via);
    /// There was nothing to send with, since the setup is not finished.
    void sendRefused();

private:
    void load();
    /// False when the file could not be written, and so is as it was before.
    bool save(std::string_view file, const std::string& content) const;
    void saveHistory() const;
    template <typename T>
    void publish(T& field, T value);

    /// Asks the keyring whether there is a token.
    QCoro::Task<> askKeyring();
    /// Takes over what the keyring said about the token.
    void learn(SecretAnswer answer);
    void setKeyring(KeyringState state);
    /// Announces keyringSlow() unless it is destroyed before.
    [[nodiscard]] std::unique_ptr<Clock::Timer> keyringPatience();

    /// A client for the stored token, read from the keyring while none is known; none without a
    /// token.
    [[nodiscard]] QCoro::Task<std::optional<Telegram>> telegram();
    [[nodiscard]] Telegram telegramFor(std::string token) const;
    /// Where to send to now; none while the setup is not finished.
    [[nodiscard]] QCoro::Task<std::optional<Recipient>> recipient();
    /// The sentence for an action that has no client: what is wrong with the keyring, or
    /// `otherwise`.
    [[nodiscard]] TelegramError noClient(std::string otherwise) const;
    /// Forgets the bot, but not what the keyring holds.
    void clearBot();
    QCoro::Task<> removeForgottenToken();
    /// Throws when the user has forgotten the bot since `change`, a value of tokenChanges_.
    void expectSameBot(int change, std::string sentence) const;

    /// What is behind the public actions that send; without items, it sends the clipboard's.
    [[nodiscard]] QCoro::Task<> startSend(std::optional<std::vector<SendItem>> items,
                                          SendWishes wishes);
    /// The clipboard's content. Where there is nothing that can be sent, it says so.
    [[nodiscard]] QCoro::Task<std::vector<SendItem>> copiedItems(std::stop_token stop);
    [[nodiscard]] QCoro::Task<> sendItems(std::shared_ptr<RunningSend> send);
    void refuseToSend();
    /// Puts the next items of the send, in the order sent, into its record and into the history,
    /// the last one first.
    void record(RunningSend& send, const std::vector<SentItem>& items);
    /// Records all items that are left as not sent, for this reason.
    void recordUnsent(RunningSend& send, const std::string& error);
    void announceEnd(const RunningSend& send);
    /// Ends the send under way, if any, without waiting for it.
    void abandonSend();
    static void abandonAtExit(Store* store);
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
    bool tokenKept_ = false;
    KeyringState keyring_ = KeyringState::asked;
    /// Runs while the keyring is asked at the start.
    std::unique_ptr<Clock::Timer> firstAnswer_;
    bool persist_ = true;
    bool configSaved_ = true;
    /// A send has begun but is not yet busy: it still asks the keyring or reads the clipboard.
    bool preparing_ = false;
    /// The send that makes the store busy, and how the present or next one is stopped.
    std::shared_ptr<RunningSend> running_;
    std::stop_source sendStop_;
    /// The program quits, and no send may begin.
    bool sendingEnded_ = false;
    std::optional<std::string> cachedToken_;
    /// The user has forgotten the bot, but the keyring may still hold its token.
    bool tokenForgotten_ = false;
    /// Grows whenever the user connects or forgets a bot.
    int tokenChanges_ = 0;
    ActionQueue setupActions_;
    HotKeyState shortcut_;
    bool started_ = false;
};

} // namespace quillon
