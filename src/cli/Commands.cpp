#include "cli/Commands.h"

#include "base/Text.h"
#include "base/Translate.h"
#include "cli/Console.h"
#include "cli/RemoteProgram.h"
#include "cli/Reports.h"
#include "cli/SpokenBanner.h"
#include "cli/TerminalAlerts.h"
#include "cli/UpdateCheckCommand.h"
#include "maintenance/Uninstaller.h"
#include "platform/LoginItem.h"
#include "platform/Platform.h"
#include "state/Store.h"

#include <QCoroFuture>

#include <array>
#include <map>
#include <memory>

namespace quillon {

namespace {

QCoro::Task<int> send(CommandContext context, Invocation /*invocation*/) {
    const std::size_t before = context.store.history().size();
    context.banner.forget();
    SendProgress progress = [console = context.console](qint64 sent, qint64 total) {
        console->progress(translate("Send", "Sending…"), sent, total);
    };
    co_await context.store.sendClipboard(Trigger::command, std::move(progress));
    context.console->endProgress();

    const std::vector<Sent>& history = context.store.history();
    const auto added = static_cast<std::ptrdiff_t>(history.size() - before);
    // Nothing was sent at all: the banner told why, unless the shortcut came first.
    if (added == 0) {
        const std::optional<std::string> problem = context.banner.problem();
        throw TelegramError{problem ? *problem
                                    : translate("Command", "Another send is still running.")};
    }

    int code = exitDone;
    // The newest entry stands first, the items were sent in the opposite order.
    for (auto entry = history.rend() - added; entry != history.rend(); ++entry) {
        context.console->print(sendLine(*entry));
        if (!entry->error) continue;
        context.console->printError(*entry->error);
        code = exitFailed;
    }
    co_return code;
}

QCoro::Task<int> connect(CommandContext context, Invocation /*invocation*/) {
    const std::string token =
        context.console->readSecret(RemoteProgram::tokenPrompt()).value_or("");
    const std::string name = co_await context.store.connectBot(token);
    // The next command can only have it from there.
    const std::optional<std::string> kept = co_await context.platform.secrets.read(botTokenItem());
    if (kept != trimmed(token)) {
        throw TelegramError{
            translate("Command", "The bot answers, but no keyring could keep its token.")};
    }
    context.console->print(filled(translate("Command", "Connected to %1"), {name}));
    co_return exitDone;
}

QCoro::Task<int> findGroup(CommandContext context, Invocation /*invocation*/) {
    co_await context.store.findGroup();
    const std::optional<std::string> title = context.store.config().chatTitle;
    context.console->print(filled(translate("Command", "Found “%1”"),
                                  {title ? *title : translate("Command", "your group")}));
    co_return exitDone;
}

QCoro::Task<int> createTopics(CommandContext context, Invocation /*invocation*/) {
    co_await context.store.createTopics();
    for (const Topic& topic : context.store.config().topics) {
        context.console->print(topic.name);
    }
    co_return exitDone;
}

QCoro::Task<int> renameTopics(CommandContext context, Invocation /*invocation*/) {
    co_await context.store.renameTopics();
    co_return exitDone;
}

QCoro::Task<int> forget(CommandContext context, Invocation /*invocation*/) {
    const bool forgotten = co_await context.store.forgetBot();
    if (!forgotten) {
        throw TelegramError{translate(
            "Command", "The keyring still holds the bot's token. Unlock it and try again.")};
    }
    co_return exitDone;
}

QCoro::Task<int> status(CommandContext context, Invocation invocation) {
    context.console->printText(invocation.json() ? statusJson(context.store)
                                                 : statusText(context.store));
    co_return exitDone;
}

QCoro::Task<int> history(CommandContext context, Invocation invocation) {
    const std::vector<Sent>& entries = context.store.history();
    context.console->printText(invocation.json() ? historyJson(entries) : historyText(entries));
    co_return exitDone;
}

/// In the order of LoginItem::Status. The first two are the words that the command takes.
constexpr std::array loginStatusTexts{
    "off", "on", QT_TRANSLATE_NOOP("Command", "switched off in the desktop's settings"),
    QT_TRANSLATE_NOOP("Command", "on, but what it would open is not there: switch it on again")};

QCoro::Task<int> launchAtLogin(CommandContext context, Invocation invocation) {
    const LoginItem& item = context.platform.loginItem;
    if (invocation.argument == "status") {
        const char* const text = loginStatusTexts.at(static_cast<std::size_t>(item.status()));
        context.console->print(translate("Command", text));
        co_return exitDone;
    }
    const bool on = invocation.argument == "on";
    context.store.setLaunchAtLogin(on);
    if (item.status() != (on ? LoginItem::Status::enabled : LoginItem::Status::notRegistered)) {
        throw TelegramError{
            on ? translate("Command", "Quillon could not be set to open at login.")
               : translate("Command", "Quillon could not be kept from opening at login.")};
    }
    co_return exitDone;
}

QCoro::Task<int> checkForUpdates(CommandContext context, Invocation invocation) {
    return runUpdateCheck(context, invocation.argument == "--install");
}

QCoro::Task<int> uninstall(CommandContext context, Invocation /*invocation*/) {
    TerminalAlerts alerts;
    Uninstaller uninstaller{context.platform, context.store, context.analytics, alerts};
    const std::function<void()> tell = [console = context.console] {
        console->print(translate(
            "Command", "Quillon and all it has stored are gone; the app is in the Trash"));
    };
    co_await uninstaller.run(tell);
    // The process has ended.
    co_return exitDone;
}

using Action = QCoro::Task<int> (*)(CommandContext, Invocation);

const std::map<Command, Action> actions{
    {Command::send, send},
    {Command::connect, connect},
    {Command::findGroup, findGroup},
    {Command::createTopics, createTopics},
    {Command::renameTopics, renameTopics},
    {Command::forget, forget},
    {Command::status, status},
    {Command::history, history},
    {Command::launchAtLogin, launchAtLogin},
    {Command::checkForUpdates, checkForUpdates},
    {Command::uninstall, uninstall},
};

} // namespace

QCoro::Task<int> runCommand(Invocation invocation, CommandContext context) {
    const Action action = actions.at(invocation.command);
    try {
        co_return co_await action(context, invocation);
    } catch (const std::exception& error) {
        // A TelegramError says the sentence for the user; anything else, such as memory running
        // out, at least does not pass in silence.
        context.console->printError(error.what());
        co_return exitFailed;
    }
}

} // namespace quillon
