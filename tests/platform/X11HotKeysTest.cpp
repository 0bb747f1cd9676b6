#include "platform/linux/x11/X11HotKeys.h"

#include "support/Await.h"
#include "support/XServer.h"

#include <QAbstractEventDispatcher>
#include <QTimer>

#include <xcb/xtest.h>

#include <gtest/gtest.h>

#include <set>

namespace quillon::test {

namespace {

using namespace std::chrono_literals;

// Key codes.
constexpr xcb_keycode_t control = 37;
constexpr xcb_keycode_t shift = 50;
constexpr xcb_keycode_t alt = 64;
constexpr xcb_keycode_t v = 55;
constexpr xcb_keycode_t b = 56;
constexpr xcb_keycode_t p = 33;
constexpr xcb_keycode_t capsLock = 66;
constexpr xcb_keycode_t numLock = 77;
constexpr xcb_keycode_t scrollLock = 78;

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
    void movePointerToScreen(int number) const {
        auto screens = xcb_setup_roots_iterator(xcb_get_setup(get()));
        while (number-- > 0)
            xcb_screen_next(&screens);
        xcb_warp_pointer(get(), XCB_NONE, screens.data->root, 0, 0, 0, 0, 5, 5);
        sync();
    }

private:
    [[nodiscard]] xcb_connection_t* get() const { return connection_->get(); }
    void fake(std::uint8_t type, xcb_keycode_t code) const {
        xcb_test_fake_input(get(), type, code, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
    }
    void sync() const { EXPECT_NE(internAtom(get(), "PRIMARY"), XCB_ATOM_NONE); }

    std::unique_ptr<X11Connection> connection_;
};

class X11HotKeysTest : public testing::Test {
protected:
    void SetUp() override {
        hotKeys->installHandler([this] { ++presses; });
    }

    /// Runs one of the keyboard tools; gives what it prints.
    QByteArray tool(const char* name, const QString& arguments,
                    const QByteArray& input = {}) const {
        QProcess process;
        process.start(QString::fromLatin1(name),
                      arguments.arg(QString::fromLatin1(server.display())).split(u' '));
        process.write(input);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        return process.readAllStandardOutput();
    }
    void setLayout(const QString& layout) const {
        tool("setxkbmap", QStringLiteral("-display %1 -option  -layout ") + layout);
    }
    /// Replaces texts in the description of the keyboard.
    void changeKeyboard(const std::vector<std::pair<QByteArray, QByteArray>>& changes) const {
        QByteArray map = tool("xkbcomp", QStringLiteral("-w0 %1 -"));
        for (const auto& [from, to] : changes) {
            ASSERT_TRUE(map.contains(from)) << from.toStdString();
            map.replace(from, to);
        }
        tool("xkbcomp", QStringLiteral("-w0 - %1"), map);
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

    XServer server{{QStringLiteral("-screen"), QStringLiteral("1"), QStringLiteral("640x480x24")}};
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
    client.movePointerToScreen(1);
    EXPECT_EQ(pressesBy({control, alt, v}), 1) << "on the second screen";
}

TEST_F(X11HotKeysTest, HearsTheKeyWhicheverLocksAreOn) {
    changeKeyboard({{"key <SCLK> {         [     Scroll_Lock ] };",
                     "key <SCLK> { [ Scroll_Lock ], actions[1] = [ LockMods(modifiers=Mod3) ] };\n"
                     "modifier_map Mod3 { <SCLK> };"}});
    const auto registration = hotKeys->registerHotKey(PhysicalKey::v);
    std::set<std::uint16_t> seen;
    // Each turn changes one lock, so that eight turns go through all combinations.
    for (const xcb_keycode_t lock :
         {capsLock, numLock, capsLock, scrollLock, capsLock, numLock, capsLock, scrollLock}) {
        client.tap(lock);
        seen.insert(client.modifiersOn());
        EXPECT_EQ(pressesBy({control, alt, v}), 1) << client.modifiersOn();
    }
    EXPECT_EQ(seen.size(), 8);
    EXPECT_TRUE(seen.contains(XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2 | XCB_MOD_MASK_3));
}

TEST_F(X11HotKeysTest, FollowsTheKeyToANewPlace) {
    const auto registration = hotKeys->registerHotKey(PhysicalKey::v);
    changeKeyboard({{"<AB04> = 55;", "<AB04> = 56;"},
                    {"<AB05> = 56;", "<AB05> = 55;"},
                    {"modifier_map Mod1 { <LALT> };", "modifier_map Mod3 { <LALT> };"}});
    EXPECT_TRUE(waitUntil([&] {
        client.type({control, alt, b});
        return presses > 0;
    }));
    const Client other{server};
    EXPECT_TRUE(other.grabAll(v)) << "still grabbed where it was";
    EXPECT_FALSE(other.grab(b, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_3));
    settle();
    EXPECT_EQ(pressesBy({control, alt, b}), 1);
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

TEST(X11HotKeys, IsNotThereWithoutADisplay) {
    EXPECT_EQ(X11HotKeys::open(":59999"), nullptr);
}

} // namespace quillon::test
