#include "send/ItemSend.h"

#include "base/Text.h"
#include "base/Translate.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/Platform.h"
#include "send/ClipContent.h"
#include "send/Clipboard.h"
#include "send/FileKind.h"
#include "send/Message.h"

#include <QCoroFuture>
#include <QThreadPool>
#include <QtConcurrentRun>

#include <chrono>
#include <exception>

namespace quillon {

namespace {

using namespace std::chrono_literals;

/// A file of which no byte comes for this long cannot be read.
constexpr std::chrono::seconds readingPatience = 30s;

/// The Bot API's limit for photos is 10,000,000 bytes; a picture of that size or more goes as a
/// document.
constexpr qint64 maximumPhotoSize = 9'999'999;
/// A text prepared off the main thread, since the work grows with its length.
struct PreparedText {
    std::string title;
    std::vector<std::string> messages;
};

PreparedText prepare(const std::string& text) {
    return {.title = textTitle(text), .messages = textMessages(text)};
}

/// Where an item of this kind goes.
Topic topicOf(const Sending& sending, TopicKind kind) {
    return topicFor(sending.recipient.topics, sending.topic.value_or(kind));
}

SentItem makeItem(const Sending& sending, TopicKind kind, std::string title, std::int64_t bytes) {
    return {.entry = {.id = QUuid::createUuid(),
                      .symbol = std::string{traits(kind).itemSymbol},
                      .title = std::move(title),
                      .topic = topicOf(sending, kind).name,
                      .date = sending.platform.clock.now(),
                      .error = std::nullopt},
            .info = {.kind = kind, .bytes = bytes}};
}

/// Marks the item as not sent.
SentItem failed(SentItem item, SendFailure reason, const std::string& error) {
    item.entry.error = prefix(error, errorLimit);
    item.info.reason = reason;
    return item;
}

/// Only the want of memory throws anything but TelegramErrors here. It may come from another thread
/// and in the clothes of a QUnhandledException.
SentItem failedForMemory(SentItem item) {
    return failed(std::move(item), SendFailure::unreadable, shortOfMemoryText());
}

/// How the usage events, which have no word of their own for it, name a send that was ended: like a
/// transfer that was.
constexpr SendFailure endedReason = SendFailure::noInternet;

/// The parameters that every message of this kind has; thread 0 stands for the general topic.
Json addressed(const Sending& sending, TopicKind kind) {
    return {{"chat_id", sending.recipient.chat},
            {"message_thread_id", topicOf(sending, kind).threadId.value_or(0)}};
}

/// One request for an item.
struct Request {
    std::string method;
    Json params;
    std::optional<Upload> upload{};
};

/// Makes the request, and gives the item with the failure, if any.
QCoro::Task<SentItem> delivered(SentItem item, Request request, Sending sending) {
    QByteArray file = request.upload ? request.upload->data : QByteArray{};
    try {
        co_await sending.recipient.client.call(std::move(request.method), std::move(request.params),
                                               std::move(request.upload), sending.progress,
                                               sending.stop);
    } catch (const TelegramError& error) {
        const bool offline = error.cause == TelegramError::Cause::unreachable;
        item =
            failed(std::move(item), offline ? SendFailure::noInternet : SendFailure::telegramError,
                   error.message);
    } catch (const Stopped&) {
        item = failed(std::move(item), endedReason, stoppedText());
    } catch (const std::exception&) {
        item = failedForMemory(std::move(item));
    }
    // The system takes milliseconds to have a big file's memory back.
    if (!file.isEmpty()) QThreadPool::globalInstance()->start([file = std::move(file)] {});
    co_return item;
}

/// Gives up a file that does not come any further, as from a mount whose server is gone.
class Watch {
public:
    Watch(Clock& clock, FileLoading loading) : clock_{clock}, loading_{std::move(loading)} {
        lookLater();
    }

private:
    static constexpr std::chrono::seconds interval = 1s;

    void lookLater() {
        timer_ = clock_.after(interval, [this] { look(); });
    }

    void look() {
        const qint64 progress = loading_.progress();
        still_ = progress == progress_ ? still_ + interval : 0s;
        progress_ = progress;
        if (still_ >= readingPatience) return loading_.giveUp();
        lookLater();
    }

    Clock& clock_;
    FileLoading loading_;
    qint64 progress_ = 0;
    std::chrono::seconds still_ = 0s;
    std::unique_ptr<Clock::Timer> timer_;
};

QCoro::Task<FileReading> loaded(std::filesystem::path path, Sending sending) {
    const FileLoading loading = sending.platform.files.load(std::move(path), maximumFileSize);
    const Watch watch{sending.platform.clock, loading};
    const std::stop_callback stopped{sending.stop, [&loading] { loading.giveUp(); }};
    const QFuture<FileReading> result = loading.result();
    co_return co_await result;
}

std::string imageFilename(const Clock& clock) {
    const auto now = clock.now().time_since_epoch();
    return "clipboard-" +
           std::to_string(std::chrono::duration_cast<std::chrono::seconds>(now).count()) + ".png";
}

/// The failed item of a file that could not be read; none when the file can be sent.
std::optional<SentItem> unsendable(const SentItem& item, FileReading::Outcome outcome) {
    const std::string& name = item.entry.title;
    switch (outcome) {
    case FileReading::Outcome::read:
        return std::nullopt;
    case FileReading::Outcome::directory:
        return failed(item, SendFailure::folder,
                      filled(translate("Send", "Folders can't be sent yet: %1"), {name}));
    case FileReading::Outcome::tooBig:
        return failed(item, SendFailure::tooBig, tooBigText(name));
    case FileReading::Outcome::unreadable:
        break;
    }
    return failed(item, SendFailure::unreadable,
                  filled(translate("Send", "Couldn't read %1"), {name}));
}

QCoro::Task<SentItem> sendText(ClipText text, Sending sending) {
    SentItem item =
        makeItem(sending, TopicKind::notes, {}, static_cast<std::int64_t>(text.text.size()));
    PreparedText prepared;
    try {
        const QFuture<PreparedText> pending = QtConcurrent::run(prepare, std::move(text.text));
        prepared = co_await pending;
    } catch (const std::exception&) {
        co_return failedForMemory(std::move(item));
    }
    item.entry.title = prepared.title;
    for (const std::string& message : prepared.messages) {
        Request request{.method = "sendMessage", .params = addressed(sending, TopicKind::notes)};
        request.params["parse_mode"] = "HTML";
        request.params["text"] = message;
        item = co_await delivered(std::move(item), std::move(request), sending);
        if (item.entry.error) break;
    }
    co_return item;
}

QCoro::Task<SentItem> sendImage(ClipImage image, Sending sending) {
    const qint64 size = image.png.size();
    const bool asDocument = size > maximumPhotoSize;
    const std::string title = Clipboard::summary(ClipContent{image}).line;
    SentItem item = makeItem(sending, TopicKind::images, title, size);
    if (size > maximumFileSize)
        co_return failed(std::move(item), SendFailure::tooBig, tooBigText(title));
    Request request{.method = asDocument ? "sendDocument" : "sendPhoto",
                    .params = addressed(sending, TopicKind::images),
                    .upload = Upload{.field = asDocument ? "document" : "photo",
                                     .filename = imageFilename(sending.platform.clock),
                                     .data = std::move(image.png),
                                     .mime = "image/png"}};
    if (auto visible = caption(image.text)) request.params["caption"] = *std::move(visible);
    co_return co_await delivered(std::move(item), std::move(request), sending);
}

QCoro::Task<SentItem> sendDocument(SentItem item, std::string filename, QByteArray bytes,
                                   Sending sending) {
    Request request{.method = "sendDocument",
                    .params = addressed(sending, item.info.kind),
                    .upload = Upload{.field = "document",
                                     .filename = std::move(filename),
                                     .data = std::move(bytes),
                                     .mime = "application/octet-stream"}};
    request.params["disable_content_type_detection"] = "true";
    co_return co_await delivered(std::move(item), std::move(request), std::move(sending));
}

QCoro::Task<SentItem> sendFile(std::filesystem::path path, Sending sending) {
    const std::string name = lastComponent(path).native();
    FileReading reading = co_await loaded(path, sending);
    SentItem item = makeItem(sending, fileKind(path), validUtf8(name), reading.size);
    if (sending.stop.stop_requested())
        co_return failed(std::move(item), endedReason, stoppedText());
    if (auto problem = unsendable(item, reading.outcome)) co_return *std::move(problem);
    co_return co_await sendDocument(std::move(item), name, std::move(reading.bytes),
                                    std::move(sending));
}

QCoro::Task<SentItem> sendBytes(NamedBytes file, Sending sending) {
    const std::string name = lastComponent(file.name).native();
    const qint64 size = file.bytes.size();
    SentItem item = makeItem(sending, fileKind(file.name), validUtf8(name), size);
    if (size > maximumFileSize)
        co_return failed(item, SendFailure::tooBig, tooBigText(item.entry.title));
    co_return co_await sendDocument(std::move(item), name, std::move(file.bytes),
                                    std::move(sending));
}

/// What each kind of item is in the history before anything is known of it.
struct Unsent {
    const Sending& sending;

    SentItem operator()(const std::filesystem::path& file) const {
        return makeItem(sending, fileKind(file), validUtf8(lastComponent(file).native()), 0);
    }
    SentItem operator()(const ClipImage& image) const {
        return makeItem(sending, TopicKind::images, Clipboard::summary(ClipContent{image}).line,
                        image.png.size());
    }
    SentItem operator()(const ClipText& text) const {
        return makeItem(sending, TopicKind::notes, textTitle(text.text),
                        static_cast<std::int64_t>(text.text.size()));
    }
    SentItem operator()(const NamedBytes& file) const {
        return makeItem(sending, fileKind(file.name), validUtf8(lastComponent(file.name).native()),
                        file.bytes.size());
    }
};

/// How each kind of item is sent.
struct Sender {
    Sending sending;

    QCoro::Task<SentItem> operator()(std::filesystem::path& file) {
        return sendFile(std::move(file), std::move(sending));
    }
    QCoro::Task<SentItem> operator()(ClipImage& image) {
        return sendImage(std::move(image), std::move(sending));
    }
    QCoro::Task<SentItem> operator()(ClipText& text) {
        return sendText(std::move(text), std::move(sending));
    }
    QCoro::Task<SentItem> operator()(NamedBytes& file) {
        return sendBytes(std::move(file), std::move(sending));
    }
};

} // namespace

QCoro::Task<SentItem> sendItem(SendItem item, Sending sending) {
    return std::visit(Sender{std::move(sending)}, item);
}

SentItem unsentItem(const SendItem& item, const Sending& sending, const std::string& error) {
    return failed(std::visit(Unsent{sending}, item), endedReason, error);
}

std::string tooBigText(const std::string& name) {
    return filled(translate("Send", "%1 is over 50 MB (Telegram's limit for bots)"), {name});
}

std::string shortOfMemoryText() {
    return translate("Send", "There is not enough memory to send this.");
}

std::string stoppedText() {
    return translate("Send", "Not sent: the send was stopped.");
}

} // namespace quillon
