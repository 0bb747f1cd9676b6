// The main action of the program: it sends what is on the clipboard to its topic.
#include "base/Translate.h"
#include "desktop/Banner.h"
#include "platform/Clock.h"
#include "platform/Platform.h"
#include "platform/Sounds.h"
#include "send/Clipboard.h"
#include "send/ItemSend.h"
#include "send/Outcome.h"
#include "state/Store.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QPointer>
#include <QScopeGuard>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iterator>

namespace quillon {

namespace {

using namespace std::chrono_literals;

/// After this long the banner says that the send is under way.
constexpr std::chrono::milliseconds patience = 700ms;

} // namespace

/// A send under way: what it sends, and what has become of the items so far, in their order.
struct RunningSend {
    ClipContent content;
    Sending sending;
    Trigger via;
    /// The ids of the entries, one for each item.
    std::vector<QUuid> ids{};
    std::vector<SendInfo> infos{};
    std::vector<Sent> entries{};
    /// All items are recorded; what comes now comes too late.
    bool over = false;

    [[nodiscard]] std::size_t count() const {
        const auto* files = std::get_if<ClipFiles>(&content);
        return files ? files->paths.size() : 1;
    }

    [[nodiscard]] Sending sendingOf(std::size_t number) const {
        Sending one = sending;
        one.entry = ids.at(number);
        return one;
    }
};

namespace {

/// What the function that is for this kind of item makes of the item of that number.
template <typename Text, typename Image, typename File>
auto withItem(const ClipContent& content, std::size_t number, Text text, Image image, File file) {
    if (const auto* found = std::get_if<ClipText>(&content)) return text(*found);
    if (const auto* found = std::get_if<ClipImage>(&content)) return image(*found);
    return file(std::get<ClipFiles>(content).paths[number]);
}

QCoro::Task<SentItem> sendItem(const RunningSend& send, std::size_t number) {
    const Sending sending = send.sendingOf(number);
    return withItem(
        send.content, number, [&](const ClipText& text) { return sendText(text, sending); },
        [&](const ClipImage& image) { return sendImage(image, sending); },
        [&](const std::filesystem::path& file) { return sendFile(file, sending); });
}

SentItem unsentItem(const RunningSend& send, std::size_t number, const std::string& error) {
    const auto make = [&](const auto& item) { return unsent(item, send.sendingOf(number), error); };
    return withItem(send.content, number, make, make, make);
}

/// None for want of memory, which may come from another thread and in the clothes of a
/// QUnhandledException.
QCoro::Task<std::optional<ClipContent>> readClipboard(Pasteboard& pasteboard) {
    try {
        ClipContent content = co_await Clipboard::read(pasteboard);
        co_return content;
    } catch (const std::exception&) {
        co_return std::nullopt;
    }
}

} // namespace

/// If the X server goes away, Qt ends the program by exit(), and no event loop turns again.
void Store::abandonAtExit(Store* store) {
    static QPointer<Store> latest;
    [[maybe_unused]] static const int registered = std::atexit([] {
        if (latest) latest->abandonSend();
    });
    latest = store;
}

QCoro::Task<> Store::sendClipboard(Trigger via, SendProgress progress, std::stop_token stop) {
    if (busy_ || preparing_ || sendingEnded_) co_return;
    preparing_ = true;
    const auto prepared = qScopeGuard([this] { preparing_ = false; });
    sendStop_ = {};
    const std::stop_callback forward{stop, [this] { stopSending(); }};

    std::optional<Recipient> to = co_await recipient();
    if (!to) co_return refuseToSend();
    std::optional<ClipContent> read = co_await readClipboard(platform_.pasteboard);
    if (!read) {
        co_return show(
            {.text = shortOfMemoryText(), .symbol = "exclamationmark.triangle", .ok = false});
    }
    ClipContent content = *std::move(read);
    if (stop.stop_requested()) co_return;
    if (std::holds_alternative<ClipEmpty>(content)) {
        const Clipboard::Summary empty = Clipboard::summary(content);
        co_return show({.text = empty.line, .symbol = empty.symbol, .ok = false});
    }

    publish(busy_, true);
    const auto idle = qScopeGuard([this] {
        running_.reset();
        publish(busy_, false);
    });
    std::unique_ptr<Clock::Timer> slow = platform_.clock.after(patience, [this] {
        // If banners are switched off, no later banner would replace this one.
        if (!config_.showBanner) return;
        show({.text = translate("Send", "Sending…"), .symbol = "arrow.up.circle", .sticky = true});
    });
    const auto send =
        std::make_shared<RunningSend>(RunningSend{.content = std::move(content),
                                                  .sending = {.platform = platform_,
                                                              .recipient = *std::move(to),
                                                              .progress = std::move(progress),
                                                              .stop = sendStop_.get_token()},
                                                  .via = via});
    std::generate_n(std::back_inserter(send->ids), send->count(), QUuid::createUuid);
    send->sending.arrived = [this, chat = send->sending.recipient.chat](const QUuid& entry,
                                                                        std::int64_t message) {
        noteArrival(chat, entry, message);
    };
    forgetLastSend();
    lastSend_.chat = send->sending.recipient.chat;
    running_ = send;
    abandonAtExit(this);
    while (send->entries.size() < send->count() && !sendStop_.stop_requested()) {
        QCoro::Task<SentItem> next = sendItem(*send, send->entries.size());
        SentItem item = co_await next;
        if (send->over) co_return;
        record(*send, {std::move(item)});
    }
    recordUnsent(*send, stoppedText());
    slow.reset();
    Q_EMIT sent(send->infos, via);
    reportOutcome(send->entries);
}

void Store::stopSending() {
    sendStop_.request_stop();
}

void Store::endSending(std::chrono::milliseconds limit) {
    sendingEnded_ = true;
    stopSending();
    const QDeadlineTimer deadline{limit};
    QTimer wake; // ends the last wait for events
    wake.start(limit);
    while ((busy_ || preparing_) && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                        QEventLoop::WaitForMoreEvents);
    }
    abandonSend();
}

void Store::abandonSend() {
    if (!running_ || running_->over) return;
    sendingEnded_ = true;
    // The item under way may have arrived.
    const std::string error = translate("Send", "Quillon ended before Telegram confirmed it.");
    record(*running_, {unsentItem(*running_, running_->entries.size(), error)});
    recordUnsent(*running_, stoppedText());
    Q_EMIT sent(running_->infos, running_->via);
}

void Store::refuseToSend() {
    // With the setup finished, the keyring may be what is in the way.
    const auto problem = isConnected() ? keyringProblem() : std::nullopt;
    show({.text = problem.value_or(translate("Send", "Finish setting up Quillon first")),
          .symbol = "exclamationmark.circle",
          .ok = false});
    Q_EMIT sendRefused();
}

void Store::record(RunningSend& send, const std::vector<SentItem>& items) {
    for (const SentItem& item : items) {
        send.infos.push_back(item.info);
        send.entries.push_back(item.entry);
    }
    Q_EMIT objectWillChange();
    const auto count = static_cast<std::ptrdiff_t>(items.size());
    history_.insert(history_.begin(), send.entries.rbegin(), send.entries.rbegin() + count);
    saveHistory();
}

void Store::recordUnsent(RunningSend& send, const std::string& error) {
    std::vector<SentItem> items;
    for (std::size_t next = send.entries.size(); next < send.count(); ++next)
        items.push_back(unsentItem(send, next, error));
    if (!items.empty()) record(send, items);
    send.over = true;
}

void Store::reportOutcome(const std::vector<Sent>& entries) {
    if (sendingEnded_) return;
    const Outcome result = outcome(entries);
    if (!result.ok) {
        show({.text = result.text, .symbol = "exclamationmark.triangle", .ok = false});
    } else if (config_.showBanner) {
        show({.text = result.text, .symbol = "checkmark.circle.fill"});
    }
    if (config_.playSound) platform_.sounds.play(result.ok ? Sound::pop : Sound::basso);
}

void Store::show(BannerMessage message) {
    message.position = config_.bannerPosition;
    banner_.show(std::move(message));
}

} // namespace quillon
