#include "cli/Commands.h"

#include "base/Text.h"
#include "cli/Reports.h"
#include "cli/SpokenBanner.h"
#include "cli/Terminal.h"
#include "cli/UpdateCheckCommand.h"
#include "platform/Clock.h"
#include "platform/Platform.h"
#include "state/Store.h"

#include <QCoroFuture>

#include <chrono>
#include <map>
#include <memory>

namespace quillon {

namespace {

using namespace std::chrono_literals;

/// A shorter send shows no progress.
constexpr std::chrono::milliseconds progressPatience = 700ms;

QCoro::Task<int> send(CommandContext context, Invocation /*invocation*/) {
    const std::size_t before = context.store.history().size();
    // Shared, since the transport may tell its last figures when the send is over.
    const auto progress = std::make_shared<Terminal::Progress>();
    context.store.setSendProgress(
        [progress](qint64 sent, qint64 total) { progress->update(sent, total); });
    const auto shown =
        context.platform.clock.after(progressPatience, [progress] { progress->show(); });
    co_await context.store.sendClipboard("command");
    context.store.setSendProgress({});
    progress->end();

    const std::vector<Sent>& history = context.store.history();
    const auto added = static_cast<std::ptrdiff_t>(history.size() - before);
    // Nothing was sent at all: the banner told why.
    if (added == 0) throw TelegramError{context.banner.problem().value_or("Nothing was sent.")};

    int code = exitDone;
    // The newest entry stands first, the items were sent in the opposite order.
    for (auto entry = history.rend() - added; entry != history.rend(); ++entry) {
        Terminal::print(sendLine(*entry));
        if (!entry->error) continue;
        Terminal::printError(*entry->error);
        code = exitFailed;
    }
    co_return code;
}

QCoro::Task<int> connect(CommandContext context, Invocation /*invocation*/) {
    const std::string token = Terminal::readSecret("Bot token: ").value_or("");
    const std::string name = co_await context.store.connectBot(token);
    // The next command can only have it from there.
    const std::optional<std::string> kept = co_await context.platform.secrets.read(botTokenItem());
    if (kept != trimmed(token)) {
        throw TelegramError{"The bot answers, but no keyring could keep its token."};
    }
    Terminal::print("Connected to " + name);
    co_return exitDone;
}

QCoro::Task<int> findGroup(CommandContext context, Invocation /*invocation*/) {
    co_await context.store.findGroup();
    Terminal::print("Found “" + context.store.config().chatTitle.value_or("your group") + "”");
    co_return exitDone;
}

QCoro::Task<int> createTopics(CommandContext context, Invocation /*invocation*/) {
    co_await context.store.createTopics();
    for (const Topic& topic : context.store.config().topics) {
        Terminal::print(topic.name);
    }
    co_return exitDone;
}

QCoro::Task<int> renameTopics(CommandContext context, Invocation /*invocation*/) {
    co_await context.store.renameTopics();
    co_return exitDone;
}

QCoro::Task<int> forget(CommandContext context, Invocation /*invocation*/) {
    co_await context.store.forgetBot();
    if (context.platform.secrets.exists(botTokenItem())) {
        throw TelegramError{"The keyring still holds the bot's token. Unlock it and try again."};
    }
    co_return exitDone;
}

QCoro::Task<int> status(CommandContext context, Invocation invocation) {
    Terminal::printText(invocation.json() ? statusJson(context.store) : statusText(context.store));
    co_return exitDone;
}

QCoro::Task<int> history(CommandContext context, Invocation invocation) {
    const std::vector<Sent>& entries = context.store.history();
    Terminal::printText(invocation.json() ? historyJson(entries) : historyText(entries));
    co_return exitDone;
}

QCoro::Task<int> launchAtLogin(CommandContext /*context*/, Invocation /*invocation*/) {
    throw TelegramError{"Not there yet."};
    co_return exitFailed;
}

QCoro::Task<int> checkForUpdates(CommandContext context, Invocation invocation) {
    return runUpdateCheck(context, invocation.argument == "--install");
}

QCoro::Task<int> uninstall(CommandContext /*context*/, Invocation /*invocation*/) {
    throw TelegramError{"Not there yet."};
    co_return exitFailed;
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
        Terminal::printError(error.what());
        co_return exitFailed;
    }
}

} // namespace quillon
