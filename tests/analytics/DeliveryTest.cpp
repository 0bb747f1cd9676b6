#include "support/ConnectedComputer.h"
#include "support/Faults.h"

#include <QElapsedTimer>

namespace quillon::test {

using std::chrono::milliseconds;

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

    /// Starts a delivery whose first reply cannot be there when this returns.
    [[nodiscard]] QCoro::Task<> deliverSlowly() {
        computer.sandbox.failNext(onlyFor("events", fault(sandbox::FaultKind::delay)));
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
    EXPECT_THAT(device, MatchesRegex(
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

TEST_F(Delivery, KeepsWhatWasNotDelivered) {
    computer.sandbox.failNext(answer("events", 299, ""));
    computer.sandbox.failNext(answer("events", 300, ""));
    launchWith(450);
    await(analytics().flushNow());
    EXPECT_EQ(timeouts.size(), 2U);
    EXPECT_THAT(queued(), StartsWith(R"([{"name":"n","at":200,)"));
    const std::string before = queued();
    computer.sandbox.failNext(answer("events", 500, ""));
    analytics().flushBeforeQuit();
    computer.http.down = true;
    await(analytics().flushNow());
    EXPECT_EQ(queued(), before);
}

TEST_F(Delivery, TriesAgainAfterAQuarterOfAnHour) {
    computer.http.down = true;
    launchWith(1);
    analytics().start();
    const auto attempts = [this](milliseconds time) {
        timeouts.clear();
        computer.clock.advance(time);
        return timeouts.size();
    };
    EXPECT_EQ(attempts(59'999ms), 0U);
    EXPECT_EQ(attempts(1ms), 1U);
    EXPECT_EQ(attempts(899'999ms), 0U);
    EXPECT_EQ(attempts(1ms), 1U);
    computer.clock.jump(-24h);
    EXPECT_EQ(attempts(15min), 0U);
    EXPECT_EQ(attempts(1min), 1U) << "the user has set the clock back";
}

TEST_F(Delivery, StartsOnceAndGoesOnWithoutAServer) {
    computer.platform.server.clear();
    qputenv("TZ", "CET-1"); // it is 23:13:20 there
    computer.restart();
    analytics().start();
    analytics().start();
    EXPECT_EQ(computer.clock.pending(), 1);
    computer.restart();
    analytics().start();
    computer.clock.advance(1h); // past midnight there, but not in UTC
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

TEST_F(Delivery, HoldsUpQuittingNoLongerThanItsLimit) {
    launchWith(250);
    const std::string before = queued();
    for (const bool underWay : {false, true}) {
        Analytics impatient{computer.platform, 300ms};
        computer.sandbox.failNext(onlyFor("events", fault(sandbox::FaultKind::hang)));
        if (underWay) impatient.flushNow();
        QElapsedTimer watch;
        watch.start();
        impatient.flushBeforeQuit();
        EXPECT_THAT(milliseconds{watch.elapsed()}, AllOf(testing::Ge(290ms), testing::Le(2900ms)))
            << underWay;
        EXPECT_EQ(queued(), before);
    }
    EXPECT_EQ(timeouts.size(), 2U) << "what is under way is not sent again";
}

} // namespace quillon::test
