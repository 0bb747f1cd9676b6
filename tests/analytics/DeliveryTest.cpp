#include "support/ConnectedComputer.h"
#include "support/Faults.h"

#include <gmock/gmock.h>

#include <QDateTime>
#include <QElapsedTimer>

namespace quillon::test {
namespace {

using namespace std::chrono_literals;
using sandbox::FaultKind;
using std::chrono::milliseconds;
using testing::AllOf;
using testing::ElementsAre;
using testing::Ge;
using testing::IsEmpty;
using testing::Le;

class Delivery : public testing::Test {
protected:
    Delivery() { computer.platform.server = computer.sandbox.baseUrl(); }
    ~Delivery() override {
        qunsetenv("TZ");
        if (!zone_.isNull()) qputenv("TZ", zone_);
    }

    /// Starts the program with so many events in its queue, numbered.
    void launchWith(int count) {
        Json events = Json::array();
        for (int number = 0; number < count; ++number)
            events.push_back({{"name", "n"}, {"at", number}, {"props", {{"ok", number % 2 == 0}}}});
        computer.setContent("events.json", writeJson(events));
        computer.restart();
    }
    [[nodiscard]] Analytics& analytics() const { return *computer.analytics; }

    /// Lets the user's time zone be another one.
    static void move(const char* zone) { qputenv("TZ", zone); }

    /// The numbers of the first event and the last one of each batch that the server was sent.
    [[nodiscard]] std::vector<std::pair<std::int64_t, std::int64_t>> batches() const {
        std::vector<std::pair<std::int64_t, std::int64_t>> batches;
        for (const sandbox::EventsRecord& record : computer.sandbox.events()) {
            const Json events = parseJson(record.body).value_or(Json{}).at("events");
            batches.emplace_back(events.front()["at"].get<std::int64_t>(),
                                 events.back()["at"].get<std::int64_t>());
        }
        return batches;
    }
    [[nodiscard]] std::string queued() const { return computer.content("events.json"); }

    void failNext(sandbox::Fault fault) {
        fault.method = "events";
        computer.sandbox.failNext(fault);
    }

    /// Starts a delivery whose first reply cannot be there when this returns.
    [[nodiscard]] QCoro::Task<> deliverSlowly() {
        failNext(fault(FaultKind::delay));
        return analytics().flushNow();
    }

    BotComputer computer;
    std::vector<milliseconds>& timeouts = computer.http.timeouts;

private:
    QByteArray zone_ = qgetenv("TZ");
};

TEST_F(Delivery, SendsBatchesUntilTheQueueIsEmpty) {
    launchWith(450);
    const Json all = parseJson(queued()).value();
    await(analytics().flushNow());
    EXPECT_THAT(batches(),
                ElementsAre(std::pair{0, 199}, std::pair{200, 399}, std::pair{400, 449}));
    EXPECT_EQ(queued(), "[]");
    EXPECT_THAT(timeouts, testing::Each(20s));

    const Json last{{"events", Json(all.begin() + 400, all.end())}};
    EXPECT_EQ(parseJson(computer.sandbox.events()[2].body), last);
}

TEST_F(Delivery, SendsTheseHeadersAndNoOthers) {
    launchWith(1);
    await(analytics().flushNow());
    analytics().track("later");
    analytics().flushBeforeQuit();
    EXPECT_THAT(timeouts, ElementsAre(20s, 3s));

    const std::string device = computer.defaults.values.at("qln.deviceId");
    EXPECT_THAT(device, testing::MatchesRegex(
                            "[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}"));
    std::map<std::string, std::string> headers{{"accept", "application/json"},
                                               {"content-type", "application/json"},
                                               {"x-qln-device", device}};
    const auto sent = computer.sandbox.events();
    ASSERT_EQ(sent.size(), 2U);
    for (auto record : sent) {
        record.headers.erase("host");
        record.headers.erase("content-length");
        EXPECT_EQ(record.headers, headers);
        headers.erase("accept");
    }
}

TEST_F(Delivery, KeepsTheQueueWhenItFails) {
    launchWith(250);
    const std::string before = queued();
    const auto fail = [this](int status) {
        computer.http.down = status == 0;
        if (status != 0) failNext(answer("events", status, "{}"));
    };
    for (const int status : {0, 300, 500}) {
        SCOPED_TRACE(status);
        fail(status);
        await(analytics().flushNow());
        EXPECT_EQ(queued(), before);
        fail(status);
        analytics().flushBeforeQuit();
        EXPECT_EQ(queued(), before);
    }
}

TEST_F(Delivery, KeepsWhatFollowsTheLastDeliveredBatch) {
    failNext(answer("events", 299, ""));
    failNext(answer("events", 300, ""));
    launchWith(450);
    await(analytics().flushNow());
    EXPECT_EQ(timeouts.size(), 2U);
    EXPECT_EQ(analytics().queue().size(), 250U);
    EXPECT_THAT(queued(), testing::StartsWith(R"([{"name":"n","at":200,)"));
}

TEST_F(Delivery, TriesAgainAfterAQuarterOfAnHour) {
    const struct {
        const char* what;
        milliseconds manual; ///< when there is a delivery between the timer's, after the first one
        milliseconds jump;   ///< how the user sets the clock after it
        milliseconds due;    ///< when the timer delivers again, after the first one
    } cases[]{
        {"900 seconds", 0s, 0s, 900s},
        {"899 seconds at the tick", 1s, 0s, 960s},
        {"set back by a day", 0s, -24h, 960s},
        {"set forward", 0s, 5h, 60s},
    };
    computer.http.down = true;
    for (const auto& [what, manual, jump, due] : cases) {
        SCOPED_TRACE(what);
        launchWith(1);
        analytics().start();
        const auto attempts = [this](milliseconds time) {
            timeouts.clear();
            computer.clock.advance(time);
            return timeouts.size();
        };
        EXPECT_EQ(attempts(59'999ms), 0U);
        EXPECT_EQ(attempts(1ms), 1U);
        computer.clock.advance(manual);
        if (manual > 0s) await(analytics().flushNow());
        computer.clock.jump(jump);
        EXPECT_EQ(attempts(due - manual - 1ms), 0U);
        EXPECT_EQ(attempts(1ms), 1U);
    }
}

TEST_F(Delivery, CountsADayOnceWhereTheUserIs) {
    constexpr const char* kiribati = "KIR-14";
    constexpr const char* niue = "NIU11";
    constexpr const char* berlin = "CET-1CEST,M3.5.0,M10.5.0/3";
    constexpr const char* brasilia = "BRT3BRST,M11.1.0/0,M2.3.0/0";
    const struct {
        const char* zone;
        const char* utc;
        const char* day;
        bool counts;
    } steps[]{
        {kiribati, "2023-10-14T09:59:59Z", "2023-10-14", true},
        {kiribati, "2023-10-14T10:00:00Z", "2023-10-15", true},
        {kiribati, "2023-10-15T09:59:59Z", "2023-10-15", false},
        {niue, "2023-10-15T10:59:59Z", "2023-10-14", true}, // moved while running
        {niue, "2023-10-15T11:00:00Z", "2023-10-15", true},
        {berlin, "2023-10-28T22:00:00Z", "2023-10-29", true},
        {berlin, "2023-10-29T22:59:59Z", "2023-10-29", false}, // a day of 25 hours
        {berlin, "2023-10-29T23:00:00Z", "2023-10-30", true},
        {brasilia, "2023-11-05T02:59:59Z", "2023-11-04", true},
        {brasilia, "2023-11-05T03:00:00Z", "2023-11-05", true}, // which starts at one o'clock
    };
    computer.restart();
    for (const auto& [zone, utc, day, counts] : steps) {
        SCOPED_TRACE(utc);
        const auto then = QDateTime::fromString(QString::fromUtf8(utc), Qt::ISODate);
        const milliseconds now = computer.clock.now().time_since_epoch() / 1ms * 1ms;
        computer.clock.jump(milliseconds{then.toMSecsSinceEpoch()} - now);
        move(zone);
        const std::size_t before = analytics().queue().size();
        analytics().heartbeat();
        EXPECT_EQ(analytics().queue().size() - before, counts ? 1U : 0U);
        EXPECT_EQ(computer.defaults.values["qln.lastDailyActive"], day);
    }
}

TEST_F(Delivery, StartsOnceAndGoesOnWithoutAServer) {
    computer.platform.server.clear();
    move("UTC0");
    computer.restart();
    analytics().start();
    analytics().start();
    EXPECT_EQ(computer.clock.pending(), 1);
    computer.restart();
    analytics().start();
    computer.clock.advance(2h); // past midnight
    analytics().flushBeforeQuit();

    const auto* const opened =
        R"(app_opened {"appVersion":"1.0","macos":"6.1.0","locale":"de_AT","model":"Desk3"})";
    EXPECT_THAT(computer.events(),
                ElementsAre(opened, "daily_active {}", opened, "daily_active {}"));
    EXPECT_THAT(timeouts, IsEmpty());
    EXPECT_FALSE(computer.defaults.values.contains("qln.deviceId"));
}

TEST_F(Delivery, LeavesAloneWhatIsRecordedMeanwhile) {
    launchWith(1);
    auto running = deliverSlowly();
    analytics().track("meanwhile");
    await(analytics().flushNow()); // one at a time
    EXPECT_EQ(timeouts.size(), 1U);
    await(std::move(running));
    EXPECT_THAT(batches(),
                ElementsAre(std::pair{0, 0}, std::pair{1'700'000'000'000, 1'700'000'000'000}));
    EXPECT_EQ(queued(), "[]");
}

TEST_F(Delivery, WritesNothingAfterPersistingEnded) {
    launchWith(250);
    analytics().start();
    auto running = deliverSlowly();
    analytics().stopPersisting();
    std::filesystem::remove(computer.path("events.json"));
    computer.defaults.removeAll();
    await(std::move(running));
    computer.clock.advance(48h);
    analytics().flushBeforeQuit();
    EXPECT_EQ(timeouts.size(), 1U);
    EXPECT_FALSE(std::filesystem::exists(computer.path("events.json")));
    EXPECT_THAT(computer.defaults.values, IsEmpty());
}

TEST_F(Delivery, EndsWithItsOwner) {
    launchWith(250);
    auto running = deliverSlowly();
    computer.store.reset();
    computer.analytics.reset();
    await(std::move(running));
    EXPECT_EQ(timeouts.size(), 1U);
}

TEST_F(Delivery, SendsNoEventTwiceAtQuit) {
    launchWith(250);
    auto running = deliverSlowly();
    analytics().flushBeforeQuit();
    EXPECT_THAT(batches(), ElementsAre(std::pair{0, 199}, std::pair{200, 249}));
    EXPECT_EQ(queued(), "[]");

    analytics().track("later");
    await(std::move(running));
    EXPECT_THAT(computer.events(), ElementsAre("later {}"));
    EXPECT_EQ(timeouts.size(), 2U);
}

TEST_F(Delivery, HoldsUpQuittingForThreeSecondsAtMost) {
    launchWith(250);
    const std::string before = queued();
    for (const bool underWay : {false, true}) {
        failNext(fault(FaultKind::hang));
        if (underWay) analytics().flushNow();
        QElapsedTimer watch;
        watch.start();
        analytics().flushBeforeQuit();
        EXPECT_THAT(milliseconds{watch.elapsed()}, AllOf(Ge(2990ms), Le(3500ms))) << underWay;
        EXPECT_EQ(queued(), before);
        computer.restart();
    }
    EXPECT_EQ(timeouts.size(), 2U) << "what is under way is not sent again";
}

} // namespace
} // namespace quillon::test
