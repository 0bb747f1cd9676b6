#include "platform/linux/keyring/LibsecretStore.h"
#include "support/Await.h"
#include "support/SessionBus.h"

#include <QDBusVariant>

namespace quillon::test {
namespace {

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

/// A connection to the bus that the environment names at the moment.
QDBusConnection ownConnection() {
    static int count = 0;
    return QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"),
                                         QStringLiteral("keyring test %1").arg(++count));
}

struct KeyringTest : testing::Test {
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
    LibsecretStore store{ownConnection()};
};

TEST_F(KeyringTest, KeepsOneItemAndGivesItBackUnchanged) {
    EXPECT_EQ(await(store.find(token)), SecretAnswer::absent);
    EXPECT_EQ(await(store.read(token)).answer, SecretAnswer::absent);
    EXPECT_EQ(await(store.remove(token)), SecretAnswer::absent);
    EXPECT_EQ(listing().count("label ="), 0);

    const std::string second = "12:né wörd \U0001F5DD";
    EXPECT_TRUE(await(store.save(token, "first")));
    EXPECT_TRUE(await(store.save(token, second)));
    EXPECT_EQ(await(store.find(token)), SecretAnswer::found);
    EXPECT_EQ(await(store.read(token)).secret, second);
    EXPECT_EQ(listing().count("label = Quillon bot token\n"), 1);
    EXPECT_EQ(listing().count("label ="), 1);

    auto other = token;
    other.account = "someone else";
    EXPECT_EQ(await(store.remove(other)), SecretAnswer::absent);
    EXPECT_EQ(await(store.find(token)), SecretAnswer::found);

    int changes = 0;
    store.watch([&changes] { ++changes; });
    // Answered once the bus has what was asked of it before on this connection.
    EXPECT_EQ(await(store.find(token)), SecretAnswer::found);
    QDBusMessage lock = QDBusMessage::createMethodCall(
        QLatin1String{serviceName}, QStringLiteral("/org/freedesktop/secrets"),
        QStringLiteral("org.freedesktop.Secret.Service"), QStringLiteral("Lock"));
    ownConnection().send(lock << QVariant::fromValue(QList{path("collection/login")}));
    EXPECT_TRUE(waitUntil([&] { return changes > 0; }));
    EXPECT_EQ(await(store.find(token)), SecretAnswer::locked);
}

TEST_F(KeyringTest, FindsWhatAnotherProgramStored) {
    storeForeign("foreign");
    EXPECT_EQ(await(store.read(token)).secret, "foreign");
    EXPECT_TRUE(await(store.save(token, "own")));
    EXPECT_EQ(await(store.read(token)).secret, "own");
    EXPECT_EQ(listing().count("label ="), 1);
    EXPECT_EQ(listing().count("label = Quillon bot token\n"), 1);

    EXPECT_TRUE(await(store.save(token, "not \xff UTF-8"))); // the tool may refuse such a secret
    EXPECT_EQ(await(store.find(token)), SecretAnswer::found);
    EXPECT_EQ(await(store.read(token)).answer, SecretAnswer::absent);
    EXPECT_EQ(await(store.remove(token)), SecretAnswer::absent);
    EXPECT_EQ(listing().count("label ="), 0);
}

TEST(LibsecretStoreTest, HasNoAnswerWithoutABusOrAService) {
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("XDG_RUNTIME_DIR", "/nonexistent");
    const auto expectNothing = [&] {
        LibsecretStore store{ownConnection()};
        const auto begin = Clock::now();
        EXPECT_EQ(await(store.find(token)), SecretAnswer::none);
        EXPECT_EQ(await(store.read(token)).answer, SecretAnswer::none);
        EXPECT_FALSE(await(store.save(token, "value")));
        EXPECT_EQ(await(store.remove(token)), SecretAnswer::none);
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

/// A keyring that comes up, hangs, and answers in the end.
TEST(LibsecretStoreTest, TakesALateAnswerAndHearsOfANewKeyring) {
    const SessionBus bus;
    LibsecretStore store{ownConnection(), 300ms};
    int changes = 0;
    store.watch([&changes] { ++changes; });
    EXPECT_EQ(await(store.find(token)), SecretAnswer::none);
    using Paths = QList<QDBusObjectPath>;
    const BusService service{
        serviceName, {{"SearchItems", answer(Paths{}, Paths{path("collection/login/1")})}}, 1s};
    EXPECT_TRUE(waitUntil([&] { return changes > 0; }));
    const auto begin = Clock::now();
    const auto late = store.find(token);
    EXPECT_LT(Clock::now() - begin, 300ms) << "nobody waits";
    EXPECT_EQ(await(store.read(token)).answer, SecretAnswer::none);
    EXPECT_LT(Clock::now() - begin, 900ms) << "gives up";
    EXPECT_EQ(await(late), SecretAnswer::locked);
}

/// A service that cannot be searched may hold the item all the same. Every answer comes in time,
/// but all of them together do not.
TEST(LibsecretStoreTest, ChangesNothingWithoutASearchAndHasOneLimitForAll) {
    BusService::Answers answers{
        {"GetAll", answer(QVariantMap{{QStringLiteral("Locked"), false}})},
        {"ReadAlias", answer(path("collection/login"))},
        {"OpenSession", answer(QDBusVariant{QString{}}, path("session/s1"))}};
    const auto expectNoChange = [&](std::chrono::milliseconds slowness,
                                    std::chrono::milliseconds limit, auto least, auto most) {
        const SessionBus bus;
        const BusService service{serviceName, answers, slowness};
        LibsecretStore store{ownConnection(), limit};
        const auto begin = Clock::now();
        EXPECT_FALSE(await(store.save(token, "value")));
        EXPECT_GE(Clock::now() - begin, least);
        EXPECT_LT(Clock::now() - begin, most);
        EXPECT_FALSE(service.calls("SearchItems").isEmpty());
        EXPECT_TRUE(service.calls("OpenSession").isEmpty());
        EXPECT_EQ(await(store.remove(token)), SecretAnswer::none);
    };
    expectNoChange(200ms, 1s, 990ms, 2s);
    answers["SearchItems"] = std::nullopt;
    expectNoChange(0s, 5s, 0s, 4s);
}

TEST(LibsecretStoreTest, WaitsForTheUserForAsLongAsItTakes) {
    const SessionBus bus;
    using Paths = QList<QDBusObjectPath>;
    const BusService service{serviceName,
                             {{"GetAll", answer(QVariantMap{{QStringLiteral("Locked"), true}})},
                              {"SearchItems", answer(Paths{}, Paths{path("collection/login/1")})},
                              {"Unlock", answer(Paths{}, path("prompt/p1"))},
                              {"Prompt", answer()}}};
    auto store = std::make_unique<LibsecretStore>(ownConnection(), 500ms);
    EXPECT_EQ(await(store->find(token)), SecretAnswer::locked);
    EXPECT_TRUE(service.calls("Prompt").isEmpty());
    const auto reading = store->read(token);
    const auto saving = store->save(token, "value");
    EXPECT_TRUE(waitUntil([&] { return !service.calls("Prompt").isEmpty(); }));
    EXPECT_FALSE(waitUntil([&] { return reading.isFinished(); }, 1s));

    const auto begin = Clock::now();
    store.reset();
    EXPECT_LT(Clock::now() - begin, 1s);
    EXPECT_EQ(await(reading).answer, SecretAnswer::locked);
    EXPECT_FALSE(await(saving));
}

} // namespace
} // namespace quillon::test
