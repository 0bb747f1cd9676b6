#include "cli/SendCommand.h"

#include "base/Translate.h"
#include "cli/Console.h"
#include "cli/Reports.h"
#include "cli/StandardInput.h"
#include "core/Core.h"
#include "send/GivenBytes.h"
#include "send/ItemSend.h"

#include <QCoroFuture>
#include <QtConcurrentRun>

#include <system_error>
#include <utility>

namespace quillon {

namespace {

using std::filesystem::path;

constexpr std::string_view inputWord = "-";
constexpr std::string_view endOfOptions = "--";

/// Takes an option with its value into the request. False when there is no such option.
bool takeOption(SendRequest& request, std::string_view option, const std::string& value) {
    if (option == "--topic") {
        request.topic = fromRawValue<TopicKind>(value);
        return request.topic.has_value();
    }
    if (option != "--name" || value.empty()) return false;
    request.name = value;
    request.input = true;
    return true;
}

/// An option with its value behind a "=", or as the word that follows, of which `next` then steps
/// over; false for what is no option.
bool readOption(SendRequest& request, const Arguments& arguments, std::size_t& next) {
    const std::string& word = arguments[next - 1];
    const std::size_t equals = word.find('=');
    if (equals != std::string::npos)
        return takeOption(request, word.substr(0, equals), word.substr(equals + 1));
    if (next == arguments.size()) return false;
    return takeOption(request, word, arguments[next++]);
}

/// The path without the slashes at its end, which would hide its name.
path withoutSlashes(const path& file) {
    std::string text = file.native();
    while (text.size() > 1 && text.ends_with('/'))
        text.pop_back();
    return text;
}

path absolutePath(const path& file) {
    if (file.is_absolute()) return withoutSlashes(file);
    std::error_code failure;
    const path folder = std::filesystem::current_path(failure);
    // A working folder that has been deleted holds nothing any more, and neither does this one.
    return withoutSlashes((failure ? path{"/dev/null"} : folder) / file);
}

SendWishes wishesFor(const CommandContext& context, std::optional<TopicKind> topic) {
    SendWishes wishes{.via = Trigger::command, .topic = topic, .stop = context.stop};
    wishes.progress = [console = context.console](qint64 sent, qint64 total) {
        console->progress(translate("Send", "Sending…"), sent, total);
    };
    return wishes;
}

/// Tells people who do not see the command line, too: a key binding may run a pipe.
[[noreturn]] void refuse(const CommandContext& context, const std::string& problem) {
    context.core.banner.show({.text = problem,
                              .symbol = "exclamationmark.triangle",
                              .ok = false,
                              .position = context.core.store.config().bannerPosition});
    throw TelegramError{problem};
}

/// The banner has told why, unless another send was under way. Then the shortcut is ignored in
/// silence; but who has chosen files elsewhere must know that they did not go.
[[noreturn]] void refuseNothingSent(const CommandContext& context, bool given) {
    if (const auto& problem = context.core.banner.problem()) throw TelegramError{*problem};
    const std::string running = translate("Command", "Another send is still running.");
    if (given) refuse(context, running);
    throw TelegramError{running};
}

QCoro::Task<SendItem> inputItem(CommandContext context, std::optional<std::string> name) {
    const QFuture<std::optional<QByteArray>> reading =
        context.console->readInput(maximumFileSize + 1);
    std::optional<QByteArray> bytes = co_await reading;
    if (!bytes) refuse(context, translate("Command", "Standard input could not be read."));
    const QFuture<GivenBytes> looking = QtConcurrent::run(
        givenBytes, *std::move(bytes), std::move(name), translate("Command", "Standard input"));
    GivenBytes given = co_await looking;
    if (!given.item) refuse(context, given.problem);
    co_return *std::move(given.item);
}

} // namespace

std::optional<SendRequest> parseSend(const Arguments& arguments) {
    SendRequest request;
    bool options = true;
    for (std::size_t next = 0; next < arguments.size();) {
        const std::string& word = arguments[next++];
        if (word == inputWord) {
            request.input = true;
        } else if (options && word == endOfOptions) {
            options = false;
        } else if (options && word.starts_with('-')) {
            if (!readOption(request, arguments, next)) return std::nullopt;
        } else if (word.empty()) {
            return std::nullopt;
        } else {
            request.files.emplace_back(word);
        }
    }
    if (request.input && !request.files.empty()) return std::nullopt;
    return request;
}

Arguments preparedSend(Arguments arguments) {
    const std::optional<SendRequest> request = parseSend(arguments);
    if (!request) return arguments;
    Arguments words;
    if (request->topic) words.emplace_back("--topic").append("=").append(rawValue(*request->topic));
    if (request->name) words.push_back("--name=" + *request->name);
    if (request->input || (request->files.empty() && StandardInput::isContent()))
        words.emplace_back(inputWord);
    if (!request->files.empty()) words.emplace_back(endOfOptions);
    for (const path& file : request->files)
        words.push_back(absolutePath(file).native());
    return words;
}

QCoro::Task<std::vector<Sent>> sendNow(CommandContext context, std::vector<SendItem> items,
                                       SendWishes wishes) {
    Store& store = context.core.store;
    const std::size_t before = store.history().size();
    const bool given = !items.empty();
    context.core.banner.forget();
    QCoro::Task<> sending = items.empty() ? store.sendClipboard(std::move(wishes))
                                          : store.send(std::move(items), std::move(wishes));
    co_await sending;
    const std::vector<Sent>& history = store.history();
    const auto added = static_cast<std::ptrdiff_t>(history.size() - before);
    if (added == 0) refuseNothingSent(context, given);
    // The newest entry stands first.
    std::vector<Sent> entries{history.rend() - added, history.rend()};
    co_return entries;
}

QCoro::Task<int> runSend(CommandContext context, Arguments arguments) {
    const SendRequest request = parseSend(arguments).value_or(SendRequest{});
    std::vector<SendItem> items{request.files.begin(), request.files.end()};
    if (request.input) {
        SendItem item = co_await inputItem(context, request.name);
        items.push_back(std::move(item));
    }
    QCoro::Task<std::vector<Sent>> sending =
        sendNow(context, std::move(items), wishesFor(context, request.topic));
    const std::vector<Sent> entries = co_await sending;
    context.console->endProgress();
    int code = exitDone;
    for (const Sent& entry : entries) {
        context.console->print(sendLine(entry));
        if (!entry.error) continue;
        context.console->printError(*entry.error);
        code = exitFailed;
    }
    co_return code;
}

} // namespace quillon
