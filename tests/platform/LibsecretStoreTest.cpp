#include "platform/linux/keyring/LibsecretStore.h"
#include "platform/SessionBus.h"
#include "support/Await.h"

namespace quillon::test {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

const KeychainItem token{"quillon-test-service", "quillon", "Quillon bot token"};

const QStringList tokenAttributes{QStringLiteral("service"), QString::fromStdString(token.service),
                                  QStringLiteral("account"), QString::fromStdString(token.account)};

class KeyringTest : public testing::Test {
protected:
    KeyringTest() { bus.startKeyring(); }

    /// The labels and secrets of the items with the token's attributes, as the tool lists them.
    QByteArray listing() {
        return bus.secretTool(QStringList{QStringLiteral("search"), QStringLiteral("--all")} +
                              tokenAttributes);
    }

    void storeForeign(const QByteArray& secret) {
        bus.secretTool(QStringList{QStringLiteral("store"), QStringLiteral("--label=Other")} +
                           tokenAttributes,
                       secret);
    }

    SessionBus bus;
    LibsecretStore store;
};

TEST_F(KeyringTest, KeepsOneItemAndGivesItBackUnchanged) {
    EXPECT_FALSE(store.exists(token));
    EXPECT_EQ(await(store.read(token)), std::nullopt);
    await(store.remove(token));
    EXPECT_EQ(listing().count("label ="), 0);

    const std::string second = "12:né wörd \U0001F5DD";
    EXPECT_TRUE(await(store.save(token, "first")));
    EXPECT_TRUE(await(store.save(token, second)));
    EXPECT_TRUE(store.exists(token));
    EXPECT_EQ(await(store.read(token)), second);
    EXPECT_EQ(listing().count("label = Quillon bot token\n"), 1);
    EXPECT_EQ(listing().count("label ="), 1);

    auto other = token;
    other.account = "someone else";
    EXPECT_FALSE(store.exists(other));
    await(store.remove(other));
    EXPECT_TRUE(store.exists(token));
    await(store.remove(token));
    EXPECT_FALSE(store.exists(token));
    EXPECT_EQ(listing().count("label ="), 0);
}

TEST_F(KeyringTest, FindsWhatAnotherProgramStored) {
    storeForeign("foreign");
    EXPECT_TRUE(store.exists(token));
    EXPECT_EQ(await(store.read(token)), "foreign");
    EXPECT_TRUE(await(store.save(token, "own")));
    EXPECT_EQ(await(store.read(token)), "own");
    EXPECT_EQ(listing().count("label ="), 1);
    EXPECT_EQ(listing().count("label = Quillon bot token\n"), 1);

    storeForeign("not \xff UTF-8");
    EXPECT_TRUE(store.exists(token));
    EXPECT_EQ(await(store.read(token)), std::nullopt);
    await(store.remove(token));
    EXPECT_FALSE(store.exists(token));
}

TEST(LibsecretStoreTest, HasNothingWithoutABusOrAService) {
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("XDG_RUNTIME_DIR", "/nonexistent");
    LibsecretStore store;
    const auto expectNothing = [&] {
        const auto begin = Clock::now();
        EXPECT_FALSE(store.exists(token));
        EXPECT_EQ(await(store.read(token)), std::nullopt);
        EXPECT_FALSE(await(store.save(token, "value")));
        await(store.remove(token));
        EXPECT_LT(Clock::now() - begin, 2s);
    };
    expectNothing();
    for (const char* address : {"autolaunch:", "unix:path=/nonexistent/bus", "nonsense"}) {
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        expectNothing();
    }
    const SessionBus empty;
    expectNothing();
}

TEST(LibsecretStoreTest, GivesUpOnAServiceThatDoesNotAnswer) {
    SessionBus bus;
    const ScriptedSecretService service{bus, {}};
    LibsecretStore store;
    const auto begin = Clock::now();
    EXPECT_FALSE(store.exists(token));
    EXPECT_GE(Clock::now() - begin, 4900ms);
    EXPECT_LT(Clock::now() - begin, 5900ms);
}

/// A service that cannot be searched may hold the item all the same. Every answer comes in time,
/// but all of them together do not.
TEST(LibsecretStoreTest, ChangesNothingWithoutASearchAndTakesFiveSecondsInAll) {
    ScriptedSecretService::Answers answers{
        {"GetAll", "(@a{sv} {'Locked': <false>},)"},
        {"ReadAlias", "(objectpath '/org/freedesktop/secrets/collection/login',)"},
        {"OpenSession", "(<''>, objectpath '/org/freedesktop/secrets/session/s1')"}};
    const auto expectNoChange = [&](std::chrono::milliseconds slowness, auto least, auto most) {
        SessionBus bus;
        const ScriptedSecretService service{bus, answers, slowness};
        LibsecretStore store;
        const auto begin = Clock::now();
        EXPECT_FALSE(await(store.save(token, "value")));
        EXPECT_GE(Clock::now() - begin, least);
        EXPECT_LT(Clock::now() - begin, most);
        EXPECT_TRUE(service.wasAsked("SearchItems"));
        EXPECT_FALSE(service.wasAsked("OpenSession"));
    };
    expectNoChange(1s, 4900ms, 5600ms);
    answers["SearchItems"] = "";
    expectNoChange(0s, 0s, 1s);
}

TEST(LibsecretStoreTest, WaitsForTheUserForAsLongAsItTakes) {
    SessionBus bus;
    const ScriptedSecretService service{
        bus,
        {{"GetAll", "(@a{sv} {'Locked': <true>},)"},
         {"SearchItems", "(@ao [], [objectpath '/org/freedesktop/secrets/collection/login/1'])"},
         {"Unlock", "(@ao [], objectpath '/org/freedesktop/secrets/prompt/p1')"},
         {"Prompt", "()"}}};
    auto store = std::make_unique<LibsecretStore>();
    EXPECT_TRUE(store->exists(token));
    EXPECT_FALSE(service.wasAsked("Prompt"));
    const auto reading = store->read(token);
    const auto saving = store->save(token, "value");
    EXPECT_TRUE(waitUntil([&] { return service.wasAsked("Prompt"); }));
    EXPECT_FALSE(waitUntil([&] { return reading.isFinished(); }, 5500ms));

    const auto begin = Clock::now();
    store.reset();
    EXPECT_LT(Clock::now() - begin, 1s);
    EXPECT_EQ(await(reading), std::nullopt);
    EXPECT_FALSE(await(saving));
}

} // namespace
} // namespace quillon::test
