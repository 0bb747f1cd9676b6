#include "ui/tray/TrayIcon.h"
#include "support/ConnectedComputer.h"
#include "support/SessionBus.h"
#include "support/XServer.h"

#include <QApplication>
#include <QDBusArgument>
#include <QDBusVariant>

#include <map>

namespace quillon::test {

namespace {

/// A desktop's panel that shows icons given over the bus: a watcher, with a host or without.
class FakeHost : public BusService {
public:
    explicit FakeHost(bool hosted)
        : BusService{watcher,
                     {{"Get", property(hosted)}, {"RegisterStatusNotifierItem", QVariantList{}}},
                     {},
                     interfaces} {}

    /// The host that was missing comes to the watcher.
    void registerHost() {
        setAnswer("Get", property(true));
        sendSignal("/StatusNotifierWatcher", watcher, "StatusNotifierHostRegistered");
    }
    /// The bus names of those who registered icons.
    [[nodiscard]] QStringList items() const { return callers("RegisterStatusNotifierItem"); }
    /// A click on the icon that was registered last.
    void click() const {
        (void)call(items().constLast(), "/StatusNotifierItem", "org.kde.StatusNotifierItem",
                   "Activate", {10, 10});
    }
    /// Calls a method of that icon's menu.
    [[nodiscard]] QDBusMessage askMenu(const char* method, const QVariantList& arguments) const {
        return call(items().constLast(), "/MenuBar", "com.canonical.dbusmenu", method, arguments);
    }

private:
    static constexpr const char* watcher = "org.kde.StatusNotifierWatcher";
    static constexpr const char* interfaces =
        R"(<interface name="org.kde.StatusNotifierWatcher">
             <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
           </interface>)";

    static QVariantList property(bool value) { return {QVariant::fromValue(QDBusVariant{value})}; }
};

struct Entry {
    int id;
    bool enabled;
};

/// Reads (ia{sv}av): an entry's number, what differs from the usual, and the entries below it.
std::map<std::string, Entry> entriesOf(const QDBusMessage& layout) {
    std::map<std::string, Entry> entries;
    const auto root = qvariant_cast<QDBusArgument>(layout.arguments().value(1));
    int id = 0;
    QVariantMap properties;
    QVariantList children;
    root.beginStructure();
    root >> id >> properties >> children;
    root.endStructure();
    for (const QVariant& child : children) {
        const auto entry = qvariant_cast<QDBusArgument>(child);
        entry.beginStructure();
        entry >> id >> properties;
        QVariantList below;
        entry >> below;
        entry.endStructure();
        const QString label = properties.value(QStringLiteral("label")).toString();
        if (!label.isEmpty())
            entries[label.toStdString()] = {
                id, properties.value(QStringLiteral("enabled"), true).toBool()};
    }
    return entries;
}

/// The icon of a program that is set up, and how often it asked for what. Qt decides for all icons
/// of a process which kind of place they go to: here, to hosts on the bus.
struct TrayIconTest : testing::Test {
    ConnectedComputer computer;
    int toggles = 0;
    int panels = 0;
    int settings = 0;
    int quits = 0;
    QRect place;
    TrayIcon icon{*computer.store, computer.clock,
                  TrayActions{.togglePanel =
                                  [this](const QRect& there) {
                                      ++toggles;
                                      place = there;
                                  },
                              .openPanel = [this](const QRect&) { ++panels; },
                              .showSettings = [this] { ++settings; },
                              .quit = [this] { ++quits; }}};

    /// The desktop's panel has had all the time it needs.
    void wait() { computer.clock.advance(std::chrono::seconds{10}); }
    bool becomesMissing() {
        return waitUntil([this] {
            wait();
            return icon.missing();
        });
    }

    std::map<std::string, Entry> menu(FakeHost& host) {
        return entriesOf(host.askMenu("GetLayout", {0, -1, QStringList{}}));
    }
    void choose(FakeHost& host, const std::string& label) {
        (void)host.askMenu("Event", {menu(host).at(label).id, QStringLiteral("clicked"),
                                     QVariant::fromValue(QDBusVariant{0}), 0U});
    }
};

} // namespace

TEST_F(TrayIconTest, IsThereWheneverAHostIs) {
    EXPECT_TRUE(becomesMissing()) << "nobody has a place for it";
    {
        FakeHost host{false};
        wait();
        EXPECT_TRUE(icon.missing()) << "a watcher alone shows nothing";
        host.registerHost();
        ASSERT_TRUE(waitUntil([&] { return host.items().size() == 1; }));
        EXPECT_FALSE(icon.missing());
        host.click();
        EXPECT_TRUE(waitUntil([this] { return toggles == 1; }));
        EXPECT_TRUE(place.isEmpty()) << "such a host does not tell where the icon is";
    }
    EXPECT_TRUE(becomesMissing());
    FakeHost another{true};
    EXPECT_TRUE(waitUntil([&] { return another.items().size() == 1; }));
    EXPECT_FALSE(icon.missing());
}

TEST_F(TrayIconTest, HasAMenuForHostsThatOpenNothingElse) {
    FakeHost host{true};
    ASSERT_TRUE(waitUntil([&] { return !host.items().isEmpty(); }));
    EXPECT_TRUE(menu(host).at("Send clipboard").enabled);
    choose(host, "Open panel");
    choose(host, "Settings…");
    choose(host, "Quit");
    EXPECT_TRUE(waitUntil([this] { return panels == 1 && settings == 1 && quits == 1; }));

    computer.pasteboard.copy({{"UTF8_STRING", "from the menu"}});
    choose(host, "Send clipboard");
    EXPECT_TRUE(waitUntil([this] { return computer.messages("notes").size() == 1; }));
    ASSERT_TRUE(waitUntil([&] { return menu(host).at("Send clipboard").enabled; }));
    await(computer.store->forgetBot());
    EXPECT_TRUE(waitUntil([&] { return !menu(host).at("Send clipboard").enabled; }));
}

} // namespace quillon::test

// The tests run on a desktop of their own: an X server and a session bus, which must be there
// before the application is.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
    const quillon::test::XServer server;
    const quillon::test::SessionBus bus;
    qputenv("DISPLAY", server.display());
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QApplication application{argc, argv};
    return RUN_ALL_TESTS();
}
