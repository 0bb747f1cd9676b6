#include "platform/linux/shortcut/PortalHotKeys.h"

#include "platform/linux/shortcut/PortalShortcut.h"
#include "support/Await.h"
#include "support/SessionBus.h"

#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QThreadPool>

#include <sys/prctl.h>

namespace quillon::test {
namespace {

using Kind = HotKeyState::Kind;
using Offer = HotKeyState::Offer;
using Shortcuts = QList<PortalShortcut>;

const char* const portalPath = "/org/freedesktop/portal/desktop";
const QString sessionPath = QStringLiteral("/org/freedesktop/portal/desktop/session/1");
constexpr const char* shortcutsInterface = "org.freedesktop.portal.GlobalShortcuts";

QVariantMap triggerIs(const char* trigger) {
    return {{QStringLiteral("trigger_description"), QLatin1String{trigger}}};
}

QVariantMap found(const Shortcuts& shortcuts) {
    return {{QStringLiteral("shortcuts"), QVariant::fromValue(shortcuts)}};
}

const PortalShortcut bySuper{QStringLiteral("send-v"), triggerIs("Meta+V")};
const PortalShortcut withoutKeys{QStringLiteral("send-v"), triggerIs("")};

BusService::Answers answers(uint version) {
    const QVariant number = QVariant::fromValue(QDBusVariant{version});
    const QVariant path = QVariant::fromValue(QDBusObjectPath{"/request"});
    return {{"Register", QVariantList{}},
            {"Get", QVariantList{number}},
            {"CreateSession", QVariantList{path}},
            {"BindShortcuts", QVariantList{path}},
            {"ListShortcuts", QVariantList{path}}};
}

/// A portal that takes every request; the test says how each ends.
struct FakePortal : BusService {
    explicit FakePortal(Answers replies = answers(2))
        : BusService{"org.freedesktop.portal.Desktop", std::move(replies)} {}

    /// Ends the request that comes next.
    void respond(const char* method, uint code, const QVariantMap& results) {
        auto& seen = seen_[method];
        ASSERT_TRUE(waitUntil([&] { return calls(method).size() > seen; })) << method;
        const QDBusMessage call = calls(method).at(seen++);
        const auto options = qdbus_cast<QVariantMap>(call.arguments().constLast());
        QString caller = call.service().mid(1);
        caller.replace(QLatin1Char{'.'}, QLatin1Char{'_'});
        const QString path = QLatin1String{portalPath} + QStringLiteral("/request/") + caller +
                             QLatin1Char{'/'} + options[QStringLiteral("handle_token")].toString();
        sendSignal(path.toLatin1().constData(), "org.freedesktop.portal.Request", "Response",
                   {code, results});
    }
    void openSession(uint code = 0) {
        respond("CreateSession", code, {{QStringLiteral("session_handle"), sessionPath}});
    }
    void bind(const PortalShortcut& shortcut) {
        openSession();
        respond("BindShortcuts", 0, found({shortcut}));
    }
    void press(const QString& session, const char* id) const {
        sendSignal(portalPath, shortcutsInterface, "Activated",
                   {QVariant::fromValue(QDBusObjectPath{session}), QLatin1String{id}, quint64{1},
                    QVariantMap{{QStringLiteral("activation_token"), QStringLiteral("token")}}});
    }
    void change(const PortalShortcut& shortcut) const {
        sendSignal(portalPath, shortcutsInterface, "ShortcutsChanged",
                   {QVariant::fromValue(QDBusObjectPath{sessionPath}),
                    QVariant::fromValue(Shortcuts{shortcut})});
    }

private:
    std::map<std::string, qsizetype> seen_;
};

class PortalHotKeysTest : public testing::Test {
protected:
    PortalHotKeysTest() {
        qDBusRegisterMetaType<PortalShortcut>();
        qDBusRegisterMetaType<Shortcuts>();
    }

    /// Starts the program, whose place is a desktop of this name.
    void start(const char* desktop = "kde", std::chrono::milliseconds patience = 10s) {
        registration.reset();
        hotKeys.emplace(
            PortalHotKeys::Options{.session = {.wayland = true, .desktops = {desktop}},
                                   .executable = "/opt/quillon",
                                   .applicationId = "dev.vostrel.quillon",
                                   .bus = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"),
                                   .patience = patience,
                                   .comeback = 1ms});
        hotKeys->installHandler([this](const std::string& token) { presses.push_back(token); });
        hotKeys->observe([this](PhysicalKey, const HotKeyState& now) { state = now; });
        registration = hotKeys->registerHotKey(PhysicalKey::v);
        state = registration->state();
    }
    [[nodiscard]] bool becomes(Kind kind, const char* trigger = "") const {
        return waitUntil([&] { return state.kind == kind && state.trigger == trigger; });
    }
    [[nodiscard]] bool isPressed(std::size_t times) const {
        return waitUntil([&] { return presses.size() == times; });
    }

    SessionBus bus;
    std::optional<PortalHotKeys> hotKeys;
    std::unique_ptr<HotKeys::Registration> registration;
    HotKeyState state;
    std::vector<std::string> presses;
};

TEST_F(PortalHotKeysTest, BindsByBothDraftsAndTellsOfItsOwnPresses) {
    FakePortal portal;
    start();
    EXPECT_EQ(state.kind, Kind::asking);
    portal.bind(bySuper);
    EXPECT_TRUE(becomes(Kind::bound, "Meta+V"));
    EXPECT_EQ(portal.calls("Register").constFirst().arguments().constFirst().toString(),
              QStringLiteral("dev.vostrel.quillon"));
    const auto options = qdbus_cast<QVariantMap>(
        portal.calls("CreateSession").constFirst().arguments().constFirst());
    for (const QVariant& wanted : {options[QStringLiteral("shortcuts")],
                                   portal.calls("BindShortcuts").constFirst().arguments().at(1)}) {
        ASSERT_THAT(portalShortcuts(wanted), SizeIs(1));
        const PortalShortcut asked = portalShortcuts(wanted).constFirst();
        EXPECT_EQ(asked.id, QStringLiteral("send-v"));
        EXPECT_EQ(asked.properties[QStringLiteral("preferred_trigger")].toString(),
                  QStringLiteral("CTRL+ALT+v"));
    }
    portal.press(QStringLiteral("/another"), "send-v");
    portal.press(sessionPath, "send-p");
    portal.press(sessionPath, "send-v");
    EXPECT_TRUE(isPressed(1));
    EXPECT_EQ(presses, std::vector<std::string>{"token"});
    const BusService liar{"some.other.program", {}};
    liar.sendSignal(portalPath, shortcutsInterface, "Activated",
                    {QVariant::fromValue(QDBusObjectPath{sessionPath}), QStringLiteral("send-v"),
                     quint64{1}, QVariantMap{}});
    portal.change({QStringLiteral("send-v"), triggerIs("F9")});
    EXPECT_TRUE(becomes(Kind::bound, "F9"));
    EXPECT_THAT(presses, SizeIs(1));

    // The second start has the same id in another session, and the first is over.
    start();
    portal.bind(bySuper);
    EXPECT_TRUE(becomes(Kind::bound, "Meta+V"));
    EXPECT_TRUE(waitUntil([&] { return !portal.calls("Close").isEmpty(); }));
    // Another choice has an id of its own, since the desktop keeps the keys for each.
    registration.reset();
    registration = hotKeys->registerHotKey(PhysicalKey::p);
    portal.openSession();
    EXPECT_TRUE(waitUntil([&] { return portal.calls("BindShortcuts").size() == 3; }));
    const QDBusMessage last = portal.calls("BindShortcuts").constLast();
    EXPECT_EQ(portalShortcuts(last.arguments().at(1)).constFirst().id, QStringLiteral("send-p"));
}

TEST_F(PortalHotKeysTest, LetsThePortalLookAtTheProcessUntilItHasTakenTheFirstRequest) {
    const auto readable = [] { return ::prctl(PR_GET_DUMPABLE, 0, 0, 0, 0) == 1; };
    ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
    std::optional<FakePortal> portal{std::in_place};
    start();
    EXPECT_TRUE(readable());
    portal->openSession();
    EXPECT_TRUE(waitUntil([&] { return portal->calls("BindShortcuts").size() == 1; }));
    EXPECT_FALSE(readable()) << "while the user is asked";
    auto without = answers(2);
    without["Get"] = std::nullopt;
    portal.reset();
    portal.emplace(without);
    start();
    EXPECT_TRUE(readable());
    EXPECT_TRUE(becomes(Kind::unavailable));
    EXPECT_FALSE(readable());
    ::prctl(PR_SET_DUMPABLE, 1, 0, 0, 0);
}

TEST_F(PortalHotKeysTest, LeavesItAtWhatAnOlderPortalHasBoundWithTheSession) {
    FakePortal portal{answers(1)};
    start();
    auto results = found({bySuper});
    results[QStringLiteral("session_handle")] = sessionPath;
    portal.respond("CreateSession", 0, results);
    EXPECT_TRUE(becomes(Kind::bound, "Meta+V"));
    portal.press(sessionPath, "send-v");
    EXPECT_TRUE(isPressed(1));
    EXPECT_THAT(portal.calls("BindShortcuts"), IsEmpty()) << "it would open the settings";
}

TEST_F(PortalHotKeysTest, TakesWhatThePortalHasWhereBindingTellsNothing) {
    auto older = answers(1);
    older["Register"] = std::nullopt;
    FakePortal portal{older};
    start();
    portal.openSession();
    portal.respond("BindShortcuts", 0, {});
    portal.respond("ListShortcuts", 0, found({bySuper}));
    EXPECT_TRUE(becomes(Kind::bound, "Meta+V"));
    EXPECT_EQ(state.offer, Offer::nothing) << "it has no dialog";
    // One that is not told of its keys works all the same.
    portal.change(withoutKeys);
    EXPECT_TRUE(becomes(Kind::unassigned));
    EXPECT_EQ(state.offer, Offer::askAgain);
    portal.press(sessionPath, "send-v");
    EXPECT_TRUE(isPressed(1));
    EXPECT_EQ(state.kind, Kind::bound);
}

TEST_F(PortalHotKeysTest, AsksAgainInANewSessionWhenTheUserWantsIt) {
    FakePortal portal;
    start();
    portal.openSession();
    portal.respond("BindShortcuts", 1, {});
    EXPECT_TRUE(becomes(Kind::refused));
    registration->takeOffer();
    EXPECT_EQ(state.kind, Kind::asking);
    portal.bind(withoutKeys); // as after a dialog that was abandoned
    EXPECT_TRUE(becomes(Kind::unassigned));
    const auto sessions = portal.calls("CreateSession");
    const auto token = [](const QDBusMessage& call) {
        const auto options = qdbus_cast<QVariantMap>(call.arguments().constFirst());
        return options[QStringLiteral("session_handle_token")].toString();
    };
    EXPECT_NE(token(sessions.at(0)), token(sessions.at(1)));
    EXPECT_EQ(state.offer, Offer::configure);
    registration->takeOffer();
    EXPECT_TRUE(waitUntil([&] { return !portal.calls("ConfigureShortcuts").isEmpty(); }));
    portal.change(bySuper);
    EXPECT_TRUE(becomes(Kind::bound, "Meta+V"));
    portal.sendSignal(sessionPath.toLatin1().constData(), "org.freedesktop.portal.Session",
                      "Closed", {});
    EXPECT_TRUE(becomes(Kind::unavailable));
    EXPECT_EQ(state.offer, Offer::askAgain);
}

TEST_F(PortalHotKeysTest, TellsWhatElseThereIsWhileAPortalIsSilentOrFails) {
    auto mute = answers(2);
    mute.erase("Register");
    const FakePortal hanging{mute};
    start("sway", 50ms);
    EXPECT_TRUE(becomes(Kind::unavailable));
    EXPECT_EQ(state.way, ShortcutWay::compositorLine);
    EXPECT_EQ(state.command, "bindsym --to-code Ctrl+Alt+v exec /opt/quillon send");
}

TEST_F(PortalHotKeysTest, TakesALateAnswerAndWithdrawsAQuestion) {
    FakePortal portal;
    start("sway", 50ms);
    portal.openSession();
    EXPECT_TRUE(becomes(Kind::unavailable));
    portal.respond("BindShortcuts", 0, found({bySuper}));
    EXPECT_TRUE(becomes(Kind::bound, "Meta+V"));
    start("sway", 50ms);
    portal.openSession(2);
    EXPECT_TRUE(becomes(Kind::unavailable));
    start("sway");
    portal.openSession();
    EXPECT_TRUE(waitUntil([&] { return portal.calls("BindShortcuts").size() == 2; }));
    const auto closesBoth = [&] {
        const qsizetype before = portal.calls("Close").size();
        registration.reset();
        return waitUntil([&] { return portal.calls("Close").size() == before + 2; });
    };
    EXPECT_TRUE(closesBoth()) << "the question to the user, and the session";
    const qsizetype made = portal.calls("CreateSession").size();
    start("sway");
    EXPECT_TRUE(waitUntil([&] { return portal.calls("CreateSession").size() > made; }));
    EXPECT_TRUE(closesBoth()) << "the session that it will answer with, too";
}

TEST_F(PortalHotKeysTest, MayEndWhileThePoolLooksForABinding) {
    start("gnome");
    ASSERT_TRUE(waitUntil([&] { return state.way == ShortcutWay::gnomeBinding; }));
    registration.reset();
    QThreadPool::globalInstance()->waitForDone();
}

TEST_F(PortalHotKeysTest, FollowsAPortalThatComesLateDiesAndComesBack) {
    start();
    EXPECT_TRUE(becomes(Kind::unavailable));
    EXPECT_EQ(state.way, ShortcutWay::none);
    EXPECT_EQ(state.command, "/opt/quillon send");
    std::optional<FakePortal> portal{std::in_place};
    portal->bind(bySuper);
    EXPECT_TRUE(becomes(Kind::bound, "Meta+V"));
    portal.reset();
    EXPECT_TRUE(becomes(Kind::unavailable));
    portal.emplace();
    portal->bind(bySuper);
    EXPECT_TRUE(becomes(Kind::bound, "Meta+V"));
    portal->press(sessionPath, "send-v");
    EXPECT_TRUE(isPressed(1));
    // One that gives no shortcuts is nobody's loss.
    auto without = answers(2);
    without["Get"] = std::nullopt;
    portal.reset();
    portal.emplace(without);
    EXPECT_TRUE(waitUntil([&] { return state.way == ShortcutWay::none; }));
    portal.reset();
    EXPECT_FALSE(waitUntil([&] { return state.way != ShortcutWay::none; }, 50ms));
}

} // namespace
} // namespace quillon::test
