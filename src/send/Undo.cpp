// Taking the last send back: its messages are deleted from the group.
#include "base/Text.h"
#include "base/Translate.h"
#include "desktop/Banner.h"
#include "platform/Clock.h"
#include "platform/Platform.h"
#include "platform/Sounds.h"
#include "send/UndoOutcome.h"
#include "state/Store.h"

#include <QScopeGuard>

#include <algorithm>
#include <chrono>
#include <functional>
#include <iterator>
#include <span>

namespace quillon {

namespace {

using namespace std::chrono_literals;

/// After this long the banner says that it is under way.
constexpr std::chrono::milliseconds patience = 700ms;

/// How many messages one request may delete (Bot API, deleteMessages).
constexpr std::size_t batchSize = 100;

/// Where the messages are.
struct Place {
    Telegram client;
    std::int64_t chat;
    std::stop_token stop;
};

/// Whether Telegram refuses to delete this message, and not the request itself: it then names the
/// message, as in "message can't be deleted" or "MESSAGE_DELETE_FORBIDDEN".
bool isAboutMessage(const TelegramError& error) {
    return error.code == 400 && lowercasedAscii(error.message).find("message") != std::string::npos;
}

bool saysGone(const TelegramError& error) {
    return lowercasedAscii(error.message).find("message to delete not found") != std::string::npos;
}

/// Deletes all of them; false where Telegram refuses one, and so has deleted none.
QCoro::Task<bool> deleteTogether(Place place, std::vector<std::int64_t> ids) {
    Json params{{"chat_id", place.chat}, {"message_ids", std::move(ids)}};
    try {
        co_await place.client.call("deleteMessages", std::move(params), std::nullopt, {},
                                   place.stop);
    } catch (const TelegramError& error) {
        if (!isAboutMessage(error)) throw;
        co_return false;
    }
    co_return true;
}

/// Deletes one; gives Telegram's reason where it refuses. One that is gone already needs nothing.
QCoro::Task<std::optional<std::string>> deleteOne(Place place, std::int64_t id) {
    Json params{{"chat_id", place.chat}, {"message_id", id}};
    try {
        co_await place.client.call("deleteMessage", std::move(params), std::nullopt, {},
                                   place.stop);
    } catch (const TelegramError& error) {
        if (!isAboutMessage(error)) throw;
        if (!saysGone(error)) co_return error.message;
    }
    co_return std::nullopt;
}

/// One message with the entry that it belongs to.
struct Single {
    QUuid entry;
    std::int64_t id;
};

std::vector<Single> singles(const LastSend& send) {
    std::vector<Single> list;
    for (const ItemMessages& item : send.items) {
        for (const std::int64_t id : item.ids)
            list.push_back({item.entry, id});
    }
    return list;
}

std::vector<std::int64_t> idsOf(std::span<const Single> messages) {
    std::vector<std::int64_t> ids;
    std::ranges::transform(messages, std::back_inserter(ids), &Single::id);
    return ids;
}

/// Taking back under way. It outlives the coroutines below.
struct Work {
    Place place;
    std::vector<Single> messages;
    /// Told which messages are gone, as soon as they are.
    std::function<void(const std::vector<std::int64_t>&)> gone;
    std::function<std::string(const Single&)> title;
    UndoOutcome outcome{};

    void settle(const std::vector<std::int64_t>& ids) {
        gone(ids);
        outcome.gone += ids.size();
    }

    void keep(const Single& message, std::string reason) {
        UndoOutcome::Kept kept{title(message), std::move(reason)};
        if (outcome.kept.empty() || outcome.kept.back() != kept)
            outcome.kept.push_back(std::move(kept));
    }
};

/// Deletes these, together where that goes, else one by one, which tells which of them stay.
QCoro::Task<> takeBackBatch(Work& work, std::span<const Single> batch) {
    bool together = false;
    if (batch.size() > 1) {
        together = co_await deleteTogether(work.place, idsOf(batch));
    }
    if (together) {
        work.settle(idsOf(batch));
        co_return;
    }
    for (const Single& message : batch) {
        const std::optional<std::string> refusal = co_await deleteOne(work.place, message.id);
        if (refusal) {
            work.keep(message, *refusal);
        } else {
            work.settle({message.id});
        }
    }
}

QCoro::Task<> takeBackAll(Work& work) {
    const std::span<const Single> all{work.messages};
    try {
        for (std::size_t begin = 0; begin < all.size(); begin += batchSize) {
            co_await takeBackBatch(work,
                                   all.subspan(begin, std::min(batchSize, all.size() - begin)));
        }
    } catch (const TelegramError& error) {
        work.outcome.problem = error.message;
    } catch (const Stopped&) {
        work.outcome.problem = translate("Undo", "Stopped before all was taken back.");
    }
}

/// The title of the entry; that of the message where the history does not reach as far back.
std::string titleOf(const std::vector<Sent>& history, const Single& message) {
    const auto entry = std::ranges::find(history, message.entry, &Sent::id);
    if (entry != history.end()) return entry->title;
    return filled(translate("Undo", "Message %1"), {std::to_string(message.id)});
}

bool isTooOld(const LastSend& send, const Clock& clock) {
    return clock.now() - send.date >= undoLimit;
}

} // namespace

bool Store::canUndo() const {
    return !undoProblem();
}

std::optional<std::string> Store::undoProblem() const {
    if (busy_ || preparing_)
        return translate("Undo", "A send is still running. Take it back once it has ended.");
    if (undoing_) return translate("Undo", "The last send is being taken back already.");
    if (lastSend_.items.empty()) {
        const bool failed =
            !history_.empty() && history_.front().error && !history_.front().takenBack;
        return failed ? translate("Undo", "Nothing of the last send has arrived.")
                      : translate("Undo", "There is nothing to take back.");
    }
    if (isTooOld(lastSend_, platform_.clock)) {
        return translate("Undo", "The last send is more than 48 hours old. Telegram lets bots "
                                 "delete messages no longer than that.");
    }
    return std::nullopt;
}

QCoro::Task<UndoOutcome> Store::undo(std::stop_token stop) {
    if (auto problem = undoProblem()) {
        show({.text = *problem, .symbol = "exclamationmark.circle", .ok = false});
        co_return UndoOutcome{.problem = std::move(problem)};
    }
    publish(undoing_, true);
    std::unique_ptr<Clock::Timer> slow = platform_.clock.after(patience, [this] {
        if (!config_.showBanner) return; // nothing would replace it
        show({.text = translate("Undo", "Taking back…"),
              .symbol = "arrow.counterclockwise",
              .sticky = true});
    });
    UndoOutcome outcome = co_await takeBack(std::move(stop));
    slow.reset();
    publish(undoing_, false);
    reportUndo(outcome);
    co_return outcome;
}

QCoro::Task<UndoOutcome> Store::takeBack(std::stop_token stop) {
    std::optional<Telegram> client = co_await telegram();
    if (!client) {
        const TelegramError why = noClient(translate("Undo", "There is nothing to take back."));
        co_return UndoOutcome{.problem = why.message};
    }
    // A new send may take the place of this one meanwhile.
    LastSend left = lastSend_;
    Work work{
        .place = {*std::move(client), left.chat, std::move(stop)},
        .messages = singles(left),
        .gone = [this, &left](const std::vector<std::int64_t>& ids) { noteTakenBack(left, ids); },
        .title = [this](const Single& message) { return titleOf(history_, message); }};
    co_await takeBackAll(work);
    co_return std::move(work.outcome);
}

void Store::noteArrival(std::int64_t chat, const QUuid& entry, std::int64_t message) {
    // After the bot was forgotten, there is nobody to take it back.
    if (lastSend_.chat != chat) return;
    lastSend_.add(entry, message, platform_.clock.now());
    saveUndo();
}

void Store::noteTakenBack(LastSend& left, const std::vector<std::int64_t>& ids) {
    Q_EMIT objectWillChange();
    const std::vector<QUuid> emptied = left.remove(ids);
    for (Sent& entry : history_) {
        if (std::ranges::find(emptied, entry.id) != emptied.end()) entry.takenBack = true;
    }
    if (lastSend_.chat == left.chat) lastSend_.remove(ids);
    saveUndo();
}

void Store::reportUndo(const UndoOutcome& outcome) {
    if (!outcome.ok()) {
        show({.text = undoText(outcome), .symbol = "exclamationmark.triangle", .ok = false});
    } else if (config_.showBanner) {
        show({.text = undoText(outcome), .symbol = "arrow.counterclockwise"});
    }
    if (config_.playSound) platform_.sounds.play(outcome.ok() ? Sound::pop : Sound::basso);
}

} // namespace quillon
