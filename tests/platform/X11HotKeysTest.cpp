#include "platform/linux/x11/X11HotKeys.h"

#include "support/Await.h"
#include "support/XServer.h"

#include <QAbstractEventDispatcher>
#include <QTimer>

#include <xcb/xtest.h>

#include <set>

namespace quillon::test {

namespace {

// Key codes.
constexpr xcb_keycode_t control = 37;
constexpr xcb_keycode_t shift = 50;
constexpr xcb_keycode_t alt = 64;
constexpr xcb_keycode_t v = 55;
constexpr xcb_keycode_t p = 33;
constexpr xcb_keycode_t capsLock = 66;
constexpr xcb_keycode_t numLock = 77;

constexpr std::uint16_t controlAlt = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1;

/// Another client of the server, which can type.
class Client {
public:
    explicit Client(const XServer& server) : connection_{X11Connection::open(server.display())} {}

    /// True when no other client holds the combination.
    bool grab(xcb_keycode_t code, std::uint16_t modifiers) const {
        const auto cookie = xcb_grab_key_checked(get(), 0, connection_->root(), modifiers, code,
                                                 XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        return !XcbPointer<xcb_generic_error_t>{xcb_request_check(get(), cookie)};
    }
    /// The same for Control and Alt with any other modifiers.
    bool grabAll(xcb_keycode_t code) const {
        for (unsigned more = 0; more < 0x100; ++more) {
            if (!grab(code, static_cast<std::uint16_t>(controlAlt | more))) return false;
        }
        return true;
    }
    void ungrabAll() const {
        xcb_ungrab_key(get(), XCB_GRAB_ANY, connection_->root(), XCB_MOD_MASK_ANY);
        sync();
    }

    void press(xcb_keycode_t code) const { fake(XCB_KEY_PRESS, code); }
    void release(xcb_keycode_t code) const { fake(XCB_KEY_RELEASE, code); }
    void tap(xcb_keycode_t code) const {
        press(code);
        release(code);
        sync();
    }
    void type(std::vector<xcb_keycode_t> codes) const {
        for (const xcb_keycode_t code : codes)
            press(code);
        for (const xcb_keycode_t code : codes)
            release(code);
        sync();
    }

    /// The locks that are on, as the server has it.
    [[nodiscard]] std::uint16_t modifiersOn() const {
        const XcbPointer<xcb_query_pointer_reply_t> reply{
            xcb_query_pointer_reply(get(), xcb_query_pointer(get(), connection_->root()), nullptr)};
        return reply->mask & 0xFF;
    }

private:
    [[nodiscard]] xcb_connection_t* get() const { return connection_->get(); }
    void fake(std::uint8_t type, xcb_keycode_t code) const {
        xcb_test_fake_input(get(), type, code, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
    }
    void sync() const { EXPECT_NE(internAtom(get(), "PRIMARY"), XCB_ATOM_NONE); }

    std::unique_ptr<X11Connection> connection_;
};

struct X11HotKeysTest : testing::Test {
    void SetUp() override {
        hotKeys->installHandler([this](const std::string& /*activation*/) { ++presses; });
    }

    void setLayout(const QString& layout) const {
        const QString options = QStringLiteral("-display %1 -option  -layout ") + layout;
        EXPECT_EQ(QProcess::execute(QStringLiteral("setxkbmap"),
                                    options.arg(QString::fromLatin1(server.display())).split(u' ')),
                  0);
    }

    /// The presses of the hot key that these keys make.
    int pressesBy(const std::vector<xcb_keycode_t>& codes) {
        presses = 0;
        client.type(codes);
        settle();
        return presses;
    }
    /// Returns when all that was typed has been heard: a registration waits for the server, whose
    /// answer comes behind it.
    void settle() const {
        EXPECT_TRUE(hotKeys->registerHotKey(PhysicalKey::c));
        QCoreApplication::processEvents();
    }

    XServer server;
    std::unique_ptr<X11HotKeys> hotKeys = X11HotKeys::open(server.display());
    Client client{server};
    int presses = 0;
};

} // namespace

TEST_F(X11HotKeysTest, HearsTheKeyByItsPlaceWhateverTheLayout) {
    const auto registration = hotKeys->registerHotKey(PhysicalKey::v);
    for (const char* layout : {"us", "ru", "us -variant dvorak", "us,ru -option grp:menu_toggle"}) {
        setLayout(QString::fromLatin1(layout));
        EXPECT_EQ(pressesBy({control, alt, v}), 1) << layout;
    }
    constexpr xcb_keycode_t menu = 135;
    client.tap(menu); // the second layout of the last two
    EXPECT_EQ(pressesBy({control, alt, v}), 1);
    EXPECT_EQ(pressesBy({control, alt, p}), 0);
    EXPECT_EQ(pressesBy({control, v}), 0);
    EXPECT_EQ(pressesBy({control, shift, alt, v}), 0);
    EXPECT_EQ(pressesBy({control, alt, v, p}), 1) << "with another key while it is held";
}

TEST_F(X11HotKeysTest, HearsTheKeyWhicheverLocksAreOn) {
    const auto registration = hotKeys->registerHotKey(PhysicalKey::v);
    std::set<std::uint16_t> seen;
    // Each turn changes one lock, so that four turns go through all combinations.
    for (const xcb_keycode_t lock : {capsLock, numLock, capsLock, numLock}) {
        client.tap(lock);
        seen.insert(client.modifiersOn());
        EXPECT_EQ(pressesBy({control, alt, v}), 1) << client.modifiersOn();
    }
    EXPECT_EQ(seen.size(), 4);
}

TEST_F(X11HotKeysTest, IsRefusedAsAWholeWhatAnotherProgramHoldsInPart) {
    const Client holder{server};
    const Client other{server};
    ASSERT_TRUE(holder.grab(v, controlAlt | XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2));
    EXPECT_EQ(hotKeys->registerHotKey(PhysicalKey::v), nullptr);
    holder.ungrabAll();
    EXPECT_TRUE(other.grabAll(v)) << "half of it is grabbed";
    EXPECT_EQ(hotKeys->registerHotKey(PhysicalKey::v), nullptr);
    other.ungrabAll();

    auto registration = hotKeys->registerHotKey(PhysicalKey::v);
    ASSERT_TRUE(registration);
    EXPECT_EQ(hotKeys->registerHotKey(PhysicalKey::v), nullptr) << "it is registered already";
    EXPECT_EQ(pressesBy({control, alt, v}), 1);
    EXPECT_FALSE(other.grab(v, controlAlt));
    EXPECT_TRUE(other.grabAll(p)) << "a key that nobody asked for is grabbed";
    registration.reset();
    settle();
    EXPECT_TRUE(other.grabAll(v)) << "still grabbed";
}

TEST_F(X11HotKeysTest, TellsOfAKeyThatIsLostAndComesBackAsTheKeyboardChanges) {
    std::vector<bool> works;
    hotKeys->observe([&](PhysicalKey /*key*/, const HotKeyState& now) {
        works.push_back(now.kind == HotKeyState::Kind::bound);
    });
    const auto registration = hotKeys->registerHotKey(PhysicalKey::v);
    const Client holder{server};
    ASSERT_TRUE(holder.grabAll(p));
    // V gets the code that P has had, and P that of V.
    const QString swap = QStringLiteral("xkbcomp -w0 %1 - | sed 's/<AB04> = 55/<AB04> = 33/; "
                                        "s/<AD10> = 33/<AD10> = 55/' | xkbcomp -w0 - %1");
    ASSERT_EQ(QProcess::execute(QStringLiteral("sh"),
                                {QStringLiteral("-c"), swap.arg(QLatin1String{server.display()})}),
              0);
    ASSERT_TRUE(waitUntil([&] { return works.size() == 1; }));
    EXPECT_FALSE(works[0]);
    holder.ungrabAll();
    setLayout(QStringLiteral("us"));
    ASSERT_TRUE(waitUntil([&] { return works.size() == 2; }));
    EXPECT_TRUE(works[1]);
    EXPECT_EQ(pressesBy({control, alt, v}), 1);
}

TEST_F(X11HotKeysTest, HearsAHeldKeyOnce) {
    const auto registration = hotKeys->registerHotKey(PhysicalKey::v);
    for (const xcb_keycode_t code : {control, alt, v})
        client.press(code);
    client.tap(shift);                       // sends what is buffered
    waitUntil([] { return false; }, 1200ms); // a dozen repetitions
    EXPECT_EQ(presses, 1);
    client.release(v);
    client.tap(v);
    client.tap(v);
    settle();
    EXPECT_EQ(presses, 3) << "pressed anew, Control and Alt still held";
}

TEST_F(X11HotKeysTest, SurvivesItsServer) {
    auto registration = hotKeys->registerHotKey(PhysicalKey::v);
    server.stop();
    int turns = 0;
    QObject context;
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake,
                     &context, [&] { ++turns; });
    bool over = false;
    QTimer::singleShot(300ms, &context, [&] { over = true; });
    while (!over)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_LT(turns, 30) << "the event loop spins";
    EXPECT_EQ(hotKeys->registerHotKey(PhysicalKey::p), nullptr);
    registration.reset();
    EXPECT_EQ(hotKeys->registerHotKey(PhysicalKey::v), nullptr);
}

} // namespace quillon::test
