#include "cli/Commands.h"

#include "base/Translate.h"
#include "cli/Console.h"
#include "cli/DoctorCommand.h"
#include "cli/Reports.h"
#include "cli/SendCommand.h"
#include "cli/Terminal.h"
#include "cli/UpdateCheckCommand.h"
#include "core/Core.h"
#include "maintenance/Alerts.h"
#include "maintenance/Uninstaller.h"
#include "platform/LoginItem.h"
#include "platform/Platform.h"
#include "platform/Sleep.h"
#include "platform/linux/LinuxFolders.h"
#include "platform/linux/desktop/LinuxBundle.h"
#include "platform/linux/files/PosixFileSystem.h"
#include "state/DataFile.h"
#include "update/Installation.h"

#include <QCoroFuture>
#include <QPromise>
#include <QScopeGuard>
#include <QtConcurrentRun>

#include <algorithm>
#include <array>
#include <chrono>
#include <memory>
#include <stop_token>

namespace quillon {

namespace {

constexpr const char* tokenPrompt = QT_TRANSLATE_NOOP("Command", "Bot token: ");

bool contains(const Arguments& arguments, std::string_view word) {
    return std::ranges::find(arguments, word) != arguments.end();
}

/// Fails when what a command has set up is in memory alone.
void expectSaved(const Store& store) {
    if (store.configSaved()) return;
    throw TelegramError{
        translate("Command", "The setup could not be saved. Is there room on the disk?")};
}

QCoro::Task<int> connect(CommandContext context, Arguments /*arguments*/) {
    const std::string token =
        context.console->readSecret(translate("Command", tokenPrompt)).value_or("");
    const std::string name = co_await context.core.store.connectBot(token);
    // The next command gets the token from the keyring alone.
    if (!context.core.store.tokenKept()) {
        throw TelegramError{
            translate("Command", "The bot answers, but no keyring could keep its token.")};
    }
    expectSaved(context.core.store);
    context.console->print(filled(translate("Command", "Connected to %1"), {name}));
    co_return exitDone;
}

QCoro::Task<int> findGroup(CommandContext context, Arguments /*arguments*/) {
    co_await context.core.store.findGroup();
    expectSaved(context.core.store);
    const std::string title =
        context.core.store.config().chatTitle.value_or(translate("Command", "your group"));
    context.console->print(filled(translate("Command", "Found “%1”"), {title}));
    co_return exitDone;
}

QCoro::Task<int> createTopics(CommandContext context, Arguments /*arguments*/) {
    co_await context.core.store.dropLostTopics();
    co_await context.core.store.createTopics();
    expectSaved(context.core.store);
    for (const Topic& topic : context.core.store.config().topics) {
        context.console->print(topic.name);
    }
    co_return exitDone;
}

QCoro::Task<int> renameTopics(CommandContext context, Arguments /*arguments*/) {
    co_await context.core.store.renameTopics();
    co_return exitDone;
}

QCoro::Task<int> forget(CommandContext context, Arguments /*arguments*/) {
    co_await context.core.store.forgetBotAndToken();
    expectSaved(context.core.store);
    co_return exitDone;
}

/// The program that stays has opened the desktop already.
DesktopWays waysFor(const CommandContext& context) {
    return context.core.compositor
               ? desktopWays(context.platform.pasteboard, *context.core.compositor)
               : probeDesktop();
}

/// Ends with the first of: all that a send needs is there, the limit is reached, nobody waits any
/// more.
QCoro::Task<int> waitUntilReady(CommandContext context) {
    constexpr std::chrono::seconds limit{60};
    constexpr std::chrono::milliseconds interval{200};
    Store& store = context.core.store;
    auto left = std::chrono::milliseconds{limit};
    for (; !canSend(store) && left.count() > 0; left -= interval) {
        if (context.stop.stop_requested()) co_return exitFailed;
        co_await sleep(context.platform.clock, interval);
        // What another process sets up meanwhile; the program that stays has the settings itself.
        if (!context.stays) store.rereadConfig();
    }
    if (canSend(store)) co_return exitDone;
    throw TelegramError{store.keyringProblem().value_or(
        translate("Command", "Quillon was not ready to send within a minute."))};
}

QCoro::Task<int> status(CommandContext context, Arguments arguments) {
    if (contains(arguments, "--wait-ready")) co_return co_await waitUntilReady(context);
    co_await context.core.store.keyringAsked();
    const Store& store = context.core.store;
    context.console->printText(contains(arguments, "--json")
                                   ? statusJson(store, waysFor(context), context.stays)
                                   : statusText(store));
    co_return exitDone;
}

/// Prints the entries of each send as they come, until nobody waits for them any more.
QCoro::Task<int> followHistory(CommandContext context) {
    if (!context.stays)
        throw TelegramError{translate("Command", "There is no Quillon running to follow.")};
    const auto print = [console = context.console](const std::vector<Sent>& entries) {
        for (const Sent& entry : entries)
            console->printNow(historyText({entry}));
    };
    const auto following = QObject::connect(&context.core.store, &Store::recorded, print);
    const auto ended = qScopeGuard([&following] { QObject::disconnect(following); });
    QPromise<void> left;
    left.start();
    const std::stop_callback leave{context.stop, [&left] { left.finish(); }};
    const QFuture<void> waiting = left.future();
    co_await waiting;
    co_return exitDone;
}

QCoro::Task<int> history(CommandContext context, Arguments arguments) {
    if (contains(arguments, "--follow")) co_return co_await followHistory(context);
    std::vector<Sent> entries = context.core.store.history();
    const auto limit = arguments.empty() ? std::nullopt : numberOf(arguments.front());
    if (limit && *limit < entries.size()) entries.resize(*limit);
    context.console->printText(contains(arguments, "--json") ? historyJson(entries)
                                                             : historyText(entries));
    co_return exitDone;
}

/// What lies in the history's file, for the shells: nobody waits there for the program.
std::vector<std::string> numberedHistory() {
    const auto file = linuxFolders().data / dataFolderName / historyFile;
    const FileReading reading = PosixFileSystem{}.read(file, maximumDataFileSize);
    std::vector<std::string> titles;
    for (const Sent& entry : decodeHistory(reading.bytes.toStdString())) {
        std::string title = Terminal::harmless(entry.title);
        std::ranges::replace(title, '\t', ' ');
        titles.push_back(std::move(title));
    }
    return titles;
}

/// In the order of LoginItem::Status. The first two are the words that the command takes.
constexpr std::array loginStatusTexts{
    "off", "on", QT_TRANSLATE_NOOP("Command", "switched off in the desktop's settings"),
    QT_TRANSLATE_NOOP("Command", "on, but what it would open is not there: switch it on again")};

QCoro::Task<int> launchAtLogin(CommandContext context, Arguments arguments) {
    const LoginItem& item = context.platform.loginItem;
    if (contains(arguments, "status")) {
        const char* const text = loginStatusTexts.at(static_cast<std::size_t>(item.status()));
        context.console->print(translate("Command", text));
        co_return exitDone;
    }
    const bool on = contains(arguments, "on");
    context.core.store.setLaunchAtLogin(on);
    if (item.status() != (on ? LoginItem::Status::enabled : LoginItem::Status::notRegistered)) {
        throw TelegramError{
            on ? translate("Command", "Quillon could not be set to open at login.")
               : translate("Command", "Quillon could not be kept from opening at login.")};
    }
    co_return exitDone;
}

QCoro::Task<int> checkForUpdates(CommandContext context, Arguments arguments) {
    return runUpdateCheck(context, contains(arguments, "--install"));
}

/// Prints alerts as lines of error output. A command asks nothing, so the answer is always the last
/// button.
class TerminalAlerts final : public Alerts {
public:
    [[nodiscard]] QFuture<std::size_t> show(Alert alert) override {
        Terminal::printError(alert.message);
        Terminal::printError(alert.informativeText);
        return QtFuture::makeReadyFuture(alert.buttons.empty() ? 0 : alert.buttons.size() - 1);
    }
};

QCoro::Task<> removeWhatUpdatesLeft(Platform& platform) {
    const QFuture<void> removing =
        QtConcurrent::run(removeLeftovers, platform.bundle, platform.folders);
    co_await removing;
}

QCoro::Task<int> uninstall(CommandContext context, Arguments /*arguments*/) {
    TerminalAlerts alerts;
    Uninstaller uninstaller{
        context.platform, context.core.store, context.core.analytics, alerts,
        [&platform = context.platform] { return removeWhatUpdatesLeft(platform); }};
    const std::function<void(bool)> tell = [console = context.console](bool tokenRemoved) {
        if (tokenRemoved) {
            console->print(translate(
                "Command", "Quillon and all it has stored are gone; the app is in the Trash"));
            return;
        }
        console->print(translate("Command", "The app is in the Trash"));
        console->printError(
            translate("Command", "The keyring still holds the bot's token, for it is locked."));
    };
    co_await uninstaller.run(tell);
    // Not reached: run() ends the process.
    co_return exitDone;
}

std::string waitsForKeyring() {
    return translate("Command", "Waiting for your keyring, which may be asking for its password in "
                                "a window of its own. Press Ctrl-C to stop.");
}

std::string helpOf(const Arguments& /*arguments*/) {
    return helpText();
}

std::string versionOf(const Arguments& /*arguments*/) {
    return "quillon " + runningBundle().shortVersion() + "\n";
}

const Word asJson{"--json", QT_TRANSLATE_NOOP("CommandLine", "answer as JSON"), false};

const std::vector<Command> commands{
    {.name = "send",
     .words = {{.text = "--topic",
                .purpose = QT_TRANSLATE_NOOP("CommandLine", "to notes, images, files or videos"),
                .value = "TOPIC",
                .values = {rawValues<TopicKind>.begin(), rawValues<TopicKind>.end()}},
               {.text = "--name",
                .purpose =
                    QT_TRANSLATE_NOOP("CommandLine", "standard input as a file of this name"),
                .value = "NAME"}},
     .usage = "[OPTION...] [FILE...|-]",
     .understands = [](const Arguments& words) { return parseSend(words).has_value(); },
     .takesFiles = true,
     .prepared = preparedSend,
     .readsInput = [](const Arguments& words) { return parseSend(words)->input; },
     .needs = DesktopNeeds::clipboardAndBanner,
     .waitsItsTurn = false,
     .action = runSend,
     .purpose = QT_TRANSLATE_NOOP(
         "CommandLine", "send the clipboard, files, or with - or by a pipe standard input")},
    {.name = "panel",
     .where = Where::residentOnly,
     .purpose =
         QT_TRANSLATE_NOOP("CommandLine", "show the panel; starts Quillon if it is not running")},
    {.name = "settings",
     .where = Where::residentOnly,
     .purpose = QT_TRANSLATE_NOOP("CommandLine",
                                  "show the settings; starts Quillon if it is not running")},
    {.name = "connect",
     .secretPrompt = tokenPrompt,
     .action = connect,
     .purpose =
         QT_TRANSLATE_NOOP("CommandLine", "connect your bot; reads its token from standard input")},
    {.name = "find-group",
     .action = findGroup,
     .purpose = QT_TRANSLATE_NOOP("CommandLine", "find the group in which you wrote to the bot")},
    {.name = "create-topics",
     .action = createTopics,
     .purpose = QT_TRANSLATE_NOOP("CommandLine", "create the four topics, or find them again")},
    {.name = "rename-topics",
     .action = renameTopics,
     .purpose = QT_TRANSLATE_NOOP("CommandLine", "give the topics the names set here")},
    {.name = "forget",
     .action = forget,
     .purpose = QT_TRANSLATE_NOOP("CommandLine", "forget the bot, the group and the topics")},
    {.name = "status",
     .words = {asJson,
               {"--wait-ready",
                QT_TRANSLATE_NOOP("CommandLine", "wait up to a minute until it can send")}},
     .onlyReads = true,
     .action = status,
     .purpose = QT_TRANSLATE_NOOP("CommandLine", "tell what is set up")},
    {.name = "history",
     .words = {asJson,
               {.text = "--follow",
                .purpose = QT_TRANSLATE_NOOP("CommandLine", "print what is sent from now on"),
                .follows = true}},
     .numbered = numberedHistory,
     .onlyReads = true,
     .action = history,
     .purpose = QT_TRANSLATE_NOOP("CommandLine", "list what was sent, newest first")},
    {.name = "doctor",
     .words = {asJson, {"--names", QT_TRANSLATE_NOOP("CommandLine", "tell names, too")}},
     .takesSeveralWords = true,
     .onlyReads = true,
     .outlastsBus = true,
     .action = runDoctor,
     .purpose = QT_TRANSLATE_NOOP("CommandLine", "tell what is wrong, and how to mend it")},
    {.name = "launch-at-login",
     .words = {{"on", QT_TRANSLATE_NOOP("CommandLine", "open it")},
               {"off", QT_TRANSLATE_NOOP("CommandLine", "do not")},
               {"status", QT_TRANSLATE_NOOP("CommandLine", "tell which"), true}},
     .needsWord = true,
     .action = launchAtLogin,
     .purpose = QT_TRANSLATE_NOOP("CommandLine", "open Quillon at login, or do not")},
    {.name = "check-for-updates",
     .words = {{"--install", QT_TRANSLATE_NOOP("CommandLine", "install it too")}},
     .action = checkForUpdates,
     .purpose =
         QT_TRANSLATE_NOOP("CommandLine", "tell whether there is a newer version; install it")},
    {.name = "uninstall",
     .words = {{"--yes", QT_TRANSLATE_NOOP("CommandLine", "yes, remove it")}},
     .needsWord = true,
     .where = Where::hereAfterQuit,
     .action = uninstall,
     .purpose = QT_TRANSLATE_NOOP("CommandLine", "remove Quillon and all it has stored")},
    {.name = "--help",
     .where = Where::here,
     .text = helpOf,
     .purpose = QT_TRANSLATE_NOOP("CommandLine", "print this")},
    {.name = "--version",
     .where = Where::here,
     .text = versionOf,
     .purpose = QT_TRANSLATE_NOOP("CommandLine", "print the version")},
    // The shells call this with the words before the one that is being typed.
    {.name = "--complete", .takesAnything = true, .where = Where::here, .text = completions},
};

} // namespace

const std::vector<Command>& allCommands() {
    return commands;
}

QCoro::Task<int> runCommand(Invocation invocation, CommandContext context) {
    const auto slow =
        QObject::connect(&context.core.store, &Store::keyringSlow, &context.core.store,
                         [console = context.console] { console->notice(waitsForKeyring()); });
    const auto disconnected = qScopeGuard([&slow] { QObject::disconnect(slow); });
    try {
        co_return co_await invocation.command->action(context, invocation.arguments);
    } catch (const std::exception& error) {
        // The message of a TelegramError is for the user. Other exceptions, such as bad_alloc, at
        // least do not pass in silence.
        context.console->printError(error.what());
        co_return exitFailed;
    }
}

} // namespace quillon
