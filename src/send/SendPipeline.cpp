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

#include <QScopeGuard>

#include <chrono>

namespace quillon {

namespace {

using namespace std::chrono_literals;

/// After this long the banner says that the send is under way.
constexpr std::chrono::milliseconds patience = 700ms;

/// Sends the items of the content one after another, in their order, until it is to stop.
QCoro::Task<std::vector<SentItem>> sendItems(ClipContent content, Sending sending,
                                             std::stop_token stop) {
    std::vector<SentItem> items;
    if (auto* text = std::get_if<ClipText>(&content)) {
        items.push_back(co_await sendText(std::move(*text), sending));
    } else if (auto* image = std::get_if<ClipImage>(&content)) {
        items.push_back(co_await sendImage(std::move(*image), sending));
    } else if (const auto* files = std::get_if<ClipFiles>(&content)) {
        for (const std::filesystem::path& path : files->paths) {
            if (stop.stop_requested()) break;
            items.push_back(co_await sendFile(path, sending));
        }
    }
    co_return items;
}

} // namespace

QCoro::Task<> Store::sendClipboard(Trigger via, SendProgress progress, std::stop_token stop) {
    if (busy_ || preparing_) co_return;
    preparing_ = true;
    const auto prepared = qScopeGuard([this] { preparing_ = false; });

    std::optional<Recipient> to = co_await recipient();
    if (!to) co_return refuseToSend();
    ClipContent content = co_await Clipboard::read(platform_.pasteboard);
    if (stop.stop_requested()) co_return;
    if (std::holds_alternative<ClipEmpty>(content)) {
        const Clipboard::Summary empty = Clipboard::summary(content);
        co_return show({.text = empty.line, .symbol = empty.symbol, .ok = false});
    }

    publish(busy_, true);
    const auto idle = qScopeGuard([this] { publish(busy_, false); });
    std::unique_ptr<Clock::Timer> slow = platform_.clock.after(patience, [this] {
        // If banners are switched off, no later banner would replace this one.
        if (!config_.showBanner) return;
        show({.text = translate("Send", "Sending…"), .symbol = "arrow.up.circle", .sticky = true});
    });
    Sending sending{
        .platform = platform_, .recipient = *std::move(to), .progress = std::move(progress)};
    const std::vector<SentItem> items =
        co_await sendItems(std::move(content), std::move(sending), stop);
    slow.reset();

    std::vector<SendInfo> infos;
    std::vector<Sent> entries;
    for (const SentItem& item : items) {
        infos.push_back(item.info);
        entries.push_back(item.entry);
    }
    Q_EMIT sent(infos, via);
    addToHistory(entries);
    reportOutcome(entries);
}

void Store::refuseToSend() {
    show({.text = translate("Send", "Finish setting up Quillon first"),
          .symbol = "exclamationmark.circle",
          .ok = false});
    Q_EMIT sendRefused();
}

void Store::addToHistory(const std::vector<Sent>& entries) {
    std::vector<Sent> history{entries.rbegin(), entries.rend()};
    history.insert(history.end(), history_.begin(), history_.end());
    publish(history_, std::move(history));
    saveHistory();
}

void Store::reportOutcome(const std::vector<Sent>& entries) {
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
