// How the events reach the makers' server: from a timer, and once more while the program quits.
#include "analytics/Analytics.h"
#include "analytics/ModelFamily.h"
#include "base/Text.h"
#include "base/Uuid.h"
#include "platform/HttpTransport.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"

#include <QCoroFuture>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QSemaphore>

#include <algorithm>

namespace quillon {

namespace {

using namespace std::chrono_literals;

constexpr std::string_view lastDailyActiveKey = "qln.lastDailyActive";
constexpr std::string_view deviceIdKey = "qln.deviceId";
constexpr std::string_view eventsPath = "/api/app/events";

constexpr std::size_t batchSize = 200;
constexpr std::chrono::seconds tickInterval = 60s;
constexpr std::chrono::seconds flushInterval = 900s;
constexpr std::chrono::seconds deliveryTimeout = 20s;

/// The date as "yyyy-MM-dd" in the user's time zone, which Qt looks up at each call.
std::string localDay(Clock::Time now) {
    const auto time = std::chrono::floor<std::chrono::milliseconds>(now.time_since_epoch());
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(time.count());
    return local.date().toString(Qt::ISODate).toStdString();
}

/// The anonymous identifier of this installation.
std::string deviceId(UserDefaults& defaults) {
    if (auto stored = defaults.text(deviceIdKey)) return *std::move(stored);
    std::string created = lowercasedAscii(uuidText(QUuid::createUuid()));
    defaults.setText(deviceIdKey, created);
    return created;
}

using Reply = QFuture<std::optional<HttpReply>>;

/// Blocks until the reply is there; false when that takes too long. The transport's thread finishes
/// the reply, so the main thread's event loop need not turn.
bool arrives(Reply reply, const QDeadlineTimer& deadline) {
    // Both sides own it, since either may finish first.
    const auto arrived = std::make_shared<QSemaphore>();
    reply.then(QtFuture::Launch::Sync,
               [arrived](const Reply& /*finished*/) { arrived->release(); });
    return arrived->tryAcquire(1, static_cast<int>(deadline.remainingTime()));
}

} // namespace

/// Events on their way, the oldest of the queue.
struct Analytics::Batch {
    std::size_t count;
    Reply reply;
};

void Analytics::start() {
    if (timer_) return;
    const SystemInfo& system = platform_.system;
    track("app_opened", {{"appVersion", platform_.bundle.shortVersion()},
                         {"macos", system.version},
                         {"locale", system.locale},
                         {"model", modelFamily(system)}});
    heartbeat();
    armTimer();
}

void Analytics::heartbeat() {
    const std::string today = localDay(platform_.clock.now());
    if (platform_.defaults.text(lastDailyActiveKey) == today) return;
    platform_.defaults.setText(lastDailyActiveKey, today);
    track("daily_active");
}

void Analytics::armTimer() {
    timer_ = platform_.clock.after(tickInterval, [this] { tick(); });
}

void Analytics::tick() {
    heartbeat();
    const Clock::Time now = platform_.clock.now();
    // If the clock was set back, the interval starts anew: the old time may be far away.
    if (lastFlush_) lastFlush_ = std::min(*lastFlush_, now);
    if (!lastFlush_ || now - *lastFlush_ >= flushInterval) flushNow();
    armTimer();
}

bool Analytics::canDeliver() {
    return persist_ && !platform_.server.empty() && !loadedQueue().empty();
}

Analytics::Batch Analytics::post(std::string accept, std::chrono::milliseconds timeout) {
    const EventQueue& events = loadedQueue();
    HttpRequest request;
    request.url = platform_.server;
    request.url += eventsPath;
    request.headers = {{"Accept", std::move(accept)},
                       {"Content-Type", "application/json"},
                       {"X-QLN-Device", deviceId(platform_.defaults)}};
    request.body = {QByteArray::fromStdString(R"({"events":)" + events.encode(batchSize) + '}')};
    request.inactivityTimeout = request.totalTimeout = timeout;
    return {std::min(batchSize, events.size()), platform_.http.post(std::move(request))};
}

bool Analytics::settle(const Batch& batch) {
    constexpr int firstSuccess = 200;
    constexpr int firstOther = 300;
    const std::optional<HttpReply> reply = batch.reply.result();
    if (!reply || reply->status < firstSuccess || reply->status >= firstOther) return false;
    loadedQueue().removeFirst(batch.count);
    save();
    return true;
}

QCoro::Task<> Analytics::flushNow() {
    if (inFlight_ || !canDeliver()) co_return;
    lastFlush_ = platform_.clock.now();
    while (canDeliver()) {
        inFlight_ = std::make_shared<Batch>(post("application/json", deliveryTimeout));
        const std::weak_ptr<Batch> sent = inFlight_;
        const Reply reply = inFlight_->reply;
        co_await reply;
        // flushBeforeQuit() has settled the batch, or this object is gone.
        if (sent.expired()) co_return;
        const auto batch = std::exchange(inFlight_, nullptr);
        if (!settle(*batch)) co_return;
    }
}

void Analytics::flushBeforeQuit() {
    const QDeadlineTimer deadline{quitLimit_};
    if (inFlight_) {
        // The events under way would arrive twice if they were sent again now.
        if (!arrives(inFlight_->reply, deadline)) return;
        const auto batch = std::exchange(inFlight_, nullptr);
        settle(*batch);
    }
    if (!canDeliver()) return;
    const Batch last = post({}, quitLimit_);
    if (arrives(last.reply, deadline)) settle(last);
}

} // namespace quillon
