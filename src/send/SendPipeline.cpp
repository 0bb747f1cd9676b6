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

#include <chrono>
#include <cstdlib>

namespace quillon {

namespace {

using namespace std::chrono_literals;

/// After this long the banner says that the send is under way.
constexpr std::chrono::milliseconds patience = 700ms;

} // namespace

/// A send under way: what it sends, and what has become of the items so far, in their order.
struct RunningSend {
    std::vector<SendItem> items;
    Sending sending;
    Trigger via;
    std::vector<SendInfo> infos{};
    std::vector<Sent> entries{};
    /// All items are recorded; what comes now comes too late.
    bool over = false;
};

namespace {

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

QCoro::Task<> Store::sendClipboard(Trigger via) {
    return sendClipboard(SendWishes{.via = via});
}

QCoro::Task<> Store::sendClipboard(SendWishes wishes) {
    return startSend(std::nullopt, std::move(wishes));
}

QCoro::Task<> Store::send(std::vector<SendItem> items, SendWishes wishes) {
    return startSend(std::move(items), std::move(wishes));
}

QCoro::Task<> Store::startSend(std::optional<std::vector<SendItem>> items, SendWishes wishes) {
    if (busy_ || preparing_ || sendingEnded_) co_return;
    preparing_ = true;
    const auto prepared = qScopeGuard([this] { preparing_ = false; });
    sendStop_ = {};
    const std::stop_callback forward{wishes.stop, [this] { stopSending(); }};

    std::optional<Recipient> to = co_await recipient();
    if (!to) co_return refuseToSend();
    if (!items) items = co_await copiedItems(wishes.stop);
    if (items->empty() || wishes.stop.stop_requested()) co_return;
    SendProgress progress = [this, told = std::move(wishes.progress)](qint64 done, qint64 total) {
        Q_EMIT sendProgressed(done, total);
        if (told) told(done, total);
    };
    QCoro::Task<> sending = sendItems(
        std::make_shared<RunningSend>(RunningSend{.items = *std::move(items),
                                                  .sending = {.platform = platform_,
                                                              .recipient = *std::move(to),
                                                              .progress = std::move(progress),
                                                              .stop = sendStop_.get_token(),
                                                              .topic = wishes.topic},
                                                  .via = wishes.via}));
    co_await sending;
}

QCoro::Task<std::vector<SendItem>> Store::copiedItems(std::stop_token stop) {
    std::optional<ClipContent> read = co_await readClipboard(platform_.pasteboard);
    if (!read) {
        show({.text = shortOfMemoryText(), .symbol = "exclamationmark.triangle", .ok = false});
        co_return {};
    }
    if (stop.stop_requested()) co_return {};
    if (std::holds_alternative<ClipEmpty>(*read)) {
        const Clipboard::Summary empty = Clipboard::summary(*read);
        show({.text = empty.line, .symbol = empty.symbol, .ok = false});
    }
    co_return Clipboard::items(*std::move(read));
}

QCoro::Task<> Store::sendItems(std::shared_ptr<RunningSend> send) {
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
    running_ = send;
    abandonAtExit(this);
    Q_EMIT sendStarted(static_cast<int>(send->items.size()));
    while (send->entries.size() < send->items.size() && !sendStop_.stop_requested()) {
        QCoro::Task<SentItem> next = sendItem(send->items[send->entries.size()], send->sending);
        SentItem item = co_await next;
        if (send->over) co_return;
        record(*send, {std::move(item)});
    }
    recordUnsent(*send, stoppedText());
    slow.reset();
    announceEnd(*send);
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
    record(*running_,
           {unsentItem(running_->items[running_->entries.size()], running_->sending, error)});
    recordUnsent(*running_, stoppedText());
    announceEnd(*running_);
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
    Q_EMIT recorded({send.entries.end() - count, send.entries.end()});
}

void Store::recordUnsent(RunningSend& send, const std::string& error) {
    std::vector<SentItem> items;
    for (std::size_t next = send.entries.size(); next < send.items.size(); ++next)
        items.push_back(unsentItem(send.items[next], send.sending, error));
    if (!items.empty()) record(send, items);
    send.over = true;
}

void Store::announceEnd(const RunningSend& send) {
    Q_EMIT sent(send.infos, send.via);
    Q_EMIT sendEnded(send.entries);
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
