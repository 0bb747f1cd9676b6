#include "platform/linux/keyring/LibsecretStore.h"
#include "support/Await.h"
#include "support/SessionBus.h"

#include <QDBusObjectPath>
#include <QDBusVariant>

namespace quillon::test {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

const KeychainItem token{"quillon-test-service", "quillon", "Quillon bot token"};

const QStringList tokenAttributes{QStringLiteral("service"), QString::fromStdString(token.service),
                                  QStringLiteral("account"), QString::fromStdString(token.account)};

constexpr const char* serviceName = "org.freedesktop.secrets";

QDBusObjectPath path(const char* below) {
    return QDBusObjectPath{QStringLiteral("/org/freedesktop/secrets/") + QLatin1String{below}};
}

/// What a method answers with these values.
template <typename... Values>
QVariantList answer(const Values&... values) {
    return {QVariant::fromValue(values)...};
}

/// Runs the command line tool of the keyring to its end, and gives its output.
QByteArray secretTool(const QStringList& arguments, const QByteArray& input = {}) {
    QProcess tool;
    tool.start(QStringLiteral("secret-tool"), arguments);
    tool.write(input);
    tool.closeWriteChannel();
    EXPECT_TRUE(tool.waitForFinished());
    return tool.readAllStandardOutput() + tool.readAllStandardError();
}

class KeyringTest : public testing::Test {
protected:
    KeyringTest() { bus.startKeyring(); }

    /// The labels and secrets of the items with the token's attributes, as the tool lists them.
    QByteArray listing() {
        return secretTool(QStringList{QStringLiteral("search"), QStringLiteral("--all")} +
                          tokenAttributes);
    }

    void storeForeign(const QByteArray& secret) {
        secretTool(QStringList{QStringLiteral("store"), QStringLiteral("--label=Other")} +
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
    const SessionBus bus;
    const BusService service{serviceName, {}};
    LibsecretStore store;
    const auto begin = Clock::now();
    EXPECT_FALSE(store.exists(token));
    EXPECT_GE(Clock::now() - begin, 4900ms);
    EXPECT_LT(Clock::now() - begin, 5900ms);
}

/// A service that cannot be searched may hold the item all the same. Every answer comes in time,
/// but all of them together do not.
TEST(LibsecretStoreTest, ChangesNothingWithoutASearchAndTakesFiveSecondsInAll) {
    BusService::Answers answers{
        {"GetAll", answer(QVariantMap{{QStringLiteral("Locked"), false}})},
        {"ReadAlias", answer(path("collection/login"))},
        {"OpenSession", answer(QDBusVariant{QString{}}, path("session/s1"))}};
    const auto expectNoChange = [&](std::chrono::milliseconds slowness, auto least, auto most) {
        const SessionBus bus;
        const BusService service{serviceName, answers, slowness};
        LibsecretStore store;
        const auto begin = Clock::now();
        EXPECT_FALSE(await(store.save(token, "value")));
        EXPECT_GE(Clock::now() - begin, least);
        EXPECT_LT(Clock::now() - begin, most);
        EXPECT_FALSE(service.calls("SearchItems").isEmpty());
        EXPECT_TRUE(service.calls("OpenSession").isEmpty());
    };
    expectNoChange(1s, 4900ms, 5600ms);
    answers["SearchItems"] = std::nullopt;
    expectNoChange(0s, 0s, 1s);
}

TEST(LibsecretStoreTest, WaitsForTheUserForAsLongAsItTakes) {
    const SessionBus bus;
    using Paths = QList<QDBusObjectPath>;
    const BusService service{serviceName,
                             {{"GetAll", answer(QVariantMap{{QStringLiteral("Locked"), true}})},
                              {"SearchItems", answer(Paths{}, Paths{path("collection/login/1")})},
                              {"Unlock", answer(Paths{}, path("prompt/p1"))},
                              {"Prompt", answer()}}};
    auto store = std::make_unique<LibsecretStore>();
    EXPECT_TRUE(store->exists(token));
    EXPECT_TRUE(service.calls("Prompt").isEmpty());
    const auto reading = store->read(token);
    const auto saving = store->save(token, "value");
    EXPECT_TRUE(waitUntil([&] { return !service.calls("Prompt").isEmpty(); }));
    EXPECT_FALSE(waitUntil([&] { return reading.isFinished(); }, 5500ms));

    const auto begin = Clock::now();
    store.reset();
    EXPECT_LT(Clock::now() - begin, 1s);
    EXPECT_EQ(await(reading), std::nullopt);
    EXPECT_FALSE(await(saving));
}

} // namespace
} // namespace quillon::test
