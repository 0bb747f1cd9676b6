// The one action that everything else is there for: what is on the clipboard goes to its topic.
#include "analytics/Analytics.h"
#include "base/Translate.h"
#include "desktop/Banner.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/Platform.h"
#include "platform/Sounds.h"
#include "send/Clipboard.h"
#include "send/FileKind.h"
#include "send/Message.h"
#include "send/Outcome.h"
#include "state/Store.h"

#include <QCoroFuture>
#include <QScopeGuard>
#include <QtConcurrent>

namespace quillon {

namespace {

using namespace std::chrono_literals;

/// A send that takes longer says so.
constexpr std::chrono::milliseconds patience = 700ms;
/// A larger image goes as a document, in bytes: just below the Bot API's limit for photos.
constexpr qint64 maximumPhotoSize = 9'999'999;
/// The Bot API's limit for files that bots upload, in bytes.
constexpr qint64 maximumFileSize = 50'000'000;

/// A text made ready off the main thread: the work grows with its length.
struct PreparedText {
    std::string title;
    std::vector<std::string> messages;
};

PreparedText prepare(const std::string& text) {
    return {.title = textTitle(text), .messages = textMessages(text)};
}

Sent makeEntry(const Clock& clock, std::string_view symbol, std::string title, std::string topic) {
    return {.id = QUuid::createUuid(),
            .symbol = std::string{symbol},
            .title = std::move(title),
            .topic = std::move(topic),
            .date = clock.now(),
            .error = std::nullopt};
}

/// The item, which a request failed to deliver.
Store::Item failed(Store::Item item, const TelegramError& error) {
    item.first.error = error.message;
    const bool offline = error.cause == TelegramError::Cause::unreachable;
    item.second.reason = offline ? "no_internet" : "telegram_error";
    return item;
}

std::string imageFilename(const Clock& clock) {
    const auto now = clock.now().time_since_epoch();
    return "clipboard-" +
           std::to_string(std::chrono::duration_cast<std::chrono::seconds>(now).count()) + ".png";
}

/// Parameters that every message to a topic has; thread 0 stands for the general topic.
Json addressed(std::int64_t chat, const Topic& topic) {
    return {{"chat_id", chat}, {"message_thread_id", topic.threadId.value_or(0)}};
}

/// Why the file cannot be sent as it was read, and how the usage events call that.
struct FileProblem {
    std::string reason;
    std::string message;
};

std::optional<FileProblem> problem(const FileReading& reading, const std::string& name) {
    switch (reading.outcome) {
    case FileReading::Outcome::read:
        return std::nullopt;
    case FileReading::Outcome::directory:
        return FileProblem{"folder",
                           filled(translate("Send", "Folders can't be sent yet: %1"), {name})};
    case FileReading::Outcome::tooBig:
        return FileProblem{
            "too_big",
            filled(translate("Send", "%1 is over 50 MB (Telegram's limit for bots)"), {name})};
    case FileReading::Outcome::unreadable:
        break;
    }
    return FileProblem{"unreadable", filled(translate("Send", "Couldn't read %1"), {name})};
}

} // namespace

QCoro::Task<> Store::sendClipboard(std::string via) {
    if (busy_ || preparing_) co_return;
    preparing_ = true;
    const auto prepared = qScopeGuard([this] { preparing_ = false; });

    if (!isReady()) co_return refuseToSend();
    const std::optional<Telegram> tg = co_await telegram();
    const std::optional<std::int64_t> chat = config_.chatId;
    if (!tg || !chat) co_return refuseToSend();

    const ClipContent content = co_await Clipboard::read(platform_.pasteboard);
    if (std::holds_alternative<ClipEmpty>(content)) {
        banner_.show(translate("Clipboard", "The clipboard is empty"), "clipboard", false, false);
        co_return;
    }

    publish(busy_, true);
    const auto idle = qScopeGuard([this] { publish(busy_, false); });
    std::unique_ptr<Clock::Timer> sending = platform_.clock.after(patience, [this] {
        // Whoever wants no banners would be left with this one, since no other would replace it.
        if (!config_.showBanner) return;
        banner_.show(translate("Send", "Sending…"), "arrow.up.circle", true, true);
    });
    std::vector<Item> items;
    if (const auto* text = std::get_if<ClipText>(&content)) {
        items.push_back(co_await sendText(text->text, *tg, *chat));
    } else if (const auto* image = std::get_if<ClipImage>(&content)) {
        items.push_back(co_await sendImage(image->png, image->text, *tg, *chat));
    } else if (const auto* files = std::get_if<ClipFiles>(&content)) {
        for (const std::filesystem::path& path : files->paths) {
            items.push_back(co_await sendFile(path, *tg, *chat));
        }
    }
    sending.reset();
    finishSend(std::move(items), via);
}

void Store::refuseToSend() {
    banner_.show(translate("Send", "Finish setting up Quillon first"), "exclamationmark.circle",
                 false, false);
    analytics_.track("send_failed", {{"reason", "not_set_up"}});
}

void Store::finishSend(std::vector<Item> items, const std::string& via) {
    std::vector<Sent> entries;
    std::vector<SendInfo> infos;
    for (auto& [entry, info] : items) {
        entries.push_back(std::move(entry));
        infos.push_back(std::move(info));
    }
    trackSend(infos, via);

    std::vector<Sent> history{entries.rbegin(), entries.rend()};
    history.insert(history.end(), history_.begin(), history_.end());
    publish(history_, std::move(history));
    saveHistory();
    reportOutcome(entries);
}

void Store::reportOutcome(const std::vector<Sent>& entries) {
    const Outcome result = outcome(entries);
    if (!result.ok) {
        banner_.show(result.text, "exclamationmark.triangle", false, false);
    } else if (config_.showBanner) {
        banner_.show(result.text, "checkmark.circle.fill", true, false);
    }
    if (config_.playSound) platform_.sounds.play(result.ok ? Sound::pop : Sound::basso);
}

QCoro::Task<Store::Item> Store::sendText(std::string text, Telegram tg, std::int64_t chat) {
    const Topic topic = topicFor("notes");
    const PreparedText prepared = co_await QtConcurrent::run(prepare, text);
    Item item{makeEntry(platform_.clock, "text.alignleft", prepared.title, topic.name),
              SendInfo{.kind = "text",
                       .bytes = static_cast<std::int64_t>(text.size()),
                       .reason = std::nullopt}};
    for (const std::string& message : prepared.messages) {
        Json params = addressed(chat, topic);
        params["parse_mode"] = "HTML";
        params["text"] = message;
        const auto failure = co_await failureOf(tg, "sendMessage", std::move(params), std::nullopt);
        if (failure) co_return failed(std::move(item), *failure);
    }
    co_return item;
}

QCoro::Task<Store::Item> Store::sendImage(QByteArray png, std::optional<std::string> text,
                                          Telegram tg, std::int64_t chat) {
    const Topic topic = topicFor("images");
    const ClipContent content = ClipImage{.png = png, .text = std::nullopt};
    Item item{makeEntry(platform_.clock, "photo", Clipboard::summary(content).line, topic.name),
              SendInfo{.kind = "image", .bytes = png.size(), .reason = std::nullopt}};
    Json params = addressed(chat, topic);
    if (auto visible = caption(text)) params["caption"] = std::move(*visible);
    const bool asDocument = png.size() > maximumPhotoSize;
    Upload upload{.field = asDocument ? "document" : "photo",
                  .filename = imageFilename(platform_.clock),
                  .data = std::move(png),
                  .mime = "image/png"};
    const std::string method = asDocument ? "sendDocument" : "sendPhoto";
    const auto failure = co_await failureOf(tg, method, std::move(params), std::move(upload));
    co_return failure ? failed(std::move(item), *failure) : item;
}

QCoro::Task<Store::Item> Store::sendFile(std::filesystem::path path, Telegram tg,
                                         std::int64_t chat) {
    const FileKind kind = fileKind(path);
    const Topic topic = topicFor(kind.topic);
    const std::string name = lastComponent(path).native();
    const std::string title = validUtf8(name);
    const QFuture<FileReading> pending = QtConcurrent::run(
        [&files = platform_.files, path] { return files.read(path, maximumFileSize); });
    FileReading reading = co_await pending;
    Item item{makeEntry(platform_.clock, kind.symbol, title, topic.name),
              SendInfo{.kind = std::string{kind.kind}, .bytes = reading.size, .reason = {}}};
    if (auto found = problem(reading, title)) {
        item.first.error = std::move(found->message);
        item.second.reason = std::move(found->reason);
        co_return item;
    }
    Json params = addressed(chat, topic);
    params["disable_content_type_detection"] = "true";
    Upload upload{.field = "document",
                  .filename = name,
                  .data = std::move(reading.bytes),
                  .mime = "application/octet-stream"};
    const auto failure =
        co_await failureOf(tg, "sendDocument", std::move(params), std::move(upload));
    co_return failure ? failed(std::move(item), *failure) : item;
}

QCoro::Task<std::optional<TelegramError>>
Store::failureOf(Telegram tg, std::string method, Json params, std::optional<Upload> upload) {
    try {
        co_await tg.call(std::move(method), std::move(params), std::move(upload), sendProgress_);
    } catch (const TelegramError& error) {
        co_return error;
    }
    co_return std::nullopt;
}

} // namespace quillon
