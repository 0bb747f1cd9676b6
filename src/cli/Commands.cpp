#include "cli/Commands.h"

#include "base/Json.h"
#include "cli/Reports.h"
#include "cli/SpokenBanner.h"
#include "cli/Terminal.h"
#include "platform/Platform.h"
#include "state/Store.h"

#include <chrono>
#include <map>

namespace quillon {

namespace {

using namespace std::chrono_literals;

/// A shorter send shows no progress.
constexpr std::chrono::milliseconds progressPatience = 700ms;

QCoro::Task<int> send(CommandContext context) {
    const std::size_t before = context.store.history().size();
    Terminal::Progress progress{progressPatience};
    context.store.setSendProgress(
        [&progress](qint64 sent, qint64 total) { progress.show(sent, total); });
    co_await context.store.sendClipboard("command");
    context.store.setSendProgress({});
    progress.clear();

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

QCoro::Task<int> connect(CommandContext context) {
    const auto token = Terminal::readSecret("Bot token: ");
    const std::string name = co_await context.store.connectBot(token.value_or(""));
    if (!context.platform.secrets.exists(botTokenItem())) {
        throw TelegramError{"The bot answers, but no keyring could keep its token."};
    }
    Terminal::print("Connected to " + name);
    co_return exitDone;
}

QCoro::Task<int> findGroup(CommandContext context) {
    co_await context.store.findGroup();
    Terminal::print("Found “" + context.store.config().chatTitle.value_or("your group") + "”");
    co_return exitDone;
}

QCoro::Task<int> createTopics(CommandContext context) {
    co_await context.store.createTopics();
    for (const Topic& topic : context.store.config().topics) {
        Terminal::print(topic.name);
    }
    co_return exitDone;
}

QCoro::Task<int> renameTopics(CommandContext context) {
    co_await context.store.renameTopics();
    co_return exitDone;
}

QCoro::Task<int> forget(CommandContext context) {
    co_await context.store.forgetBot();
    co_return exitDone;
}

int status(const CommandContext& context, bool json) {
    Terminal::printText(json ? statusJson(context.store) : statusText(context.store));
    return exitDone;
}

int history(const CommandContext& context, bool json) {
    const std::vector<Sent>& entries = context.store.history();
    Terminal::printText(json ? historyJson(entries) : historyText(entries));
    return exitDone;
}

using Action = QCoro::Task<int> (*)(CommandContext);

const std::map<Command, Action> actions{
    {Command::send, send},
    {Command::connect, connect},
    {Command::findGroup, findGroup},
    {Command::createTopics, createTopics},
    {Command::renameTopics, renameTopics},
    {Command::forget, forget},
};

} // namespace

QCoro::Task<int> runCommand(Invocation invocation, CommandContext context) {
    if (invocation.command == Command::status) co_return status(context, invocation.json);
    if (invocation.command == Command::history) co_return history(context, invocation.json);
    const auto action = actions.find(invocation.command);
    if (action == actions.end()) co_return exitUsage;
    try {
        co_return co_await action->second(context);
    } catch (const TelegramError& error) {
        Terminal::printError(error.message);
        co_return exitFailed;
    }
}

} // namespace quillon
