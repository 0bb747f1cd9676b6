#include "FakeHost.h"
#include "support/ConnectedComputer.h"
#include "support/Faults.h"
#include "ui/tray/TrayDesktop.h"

#include <QDBusArgument>

#include <map>

namespace quillon::test {

namespace {

const QString itemPath = QStringLiteral("/StatusNotifierItem");
const QString itemInterface = QStringLiteral("org.kde.StatusNotifierItem");
const QString menuPath = QStringLiteral("/MenuBar");
const QString menuInterface = QStringLiteral("com.canonical.dbusmenu");

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

struct TrayBusTest : TrayTest<ConnectedComputer> {
    std::map<std::string, Entry> menu(FakeHost& host) {
        return entriesOf(host.call(menuPath, menuInterface, QStringLiteral("GetLayout"),
                                   {0, -1, QStringList{}}));
    }
    void choose(FakeHost& host, const std::string& label) {
        host.call(menuPath, menuInterface, QStringLiteral("Event"),
                  {menu(host).at(label).id, QStringLiteral("clicked"),
                   QVariant::fromValue(QDBusVariant{0}), 0U});
    }
};

} // namespace

TEST_F(TrayBusTest, IsThereWheneverAHostIs) {
    EXPECT_TRUE(becomesMissing()) << "nobody has a place for it";
    {
        FakeHost host{false};
        wait();
        EXPECT_TRUE(icon.missing()) << "a watcher alone shows nothing";
        host.registerHost();
        ASSERT_TRUE(waitUntil([&] { return host.items().size() == 1; }));
        EXPECT_FALSE(icon.missing());
        host.call(itemPath, itemInterface, QStringLiteral("Activate"), {10, 10});
        EXPECT_TRUE(waitUntil([this] { return toggles == 1; }));
        EXPECT_TRUE(place.isEmpty()) << "such a host does not tell where the icon is";
    }
    EXPECT_TRUE(becomesMissing());
    FakeHost another{true};
    EXPECT_TRUE(waitUntil([&] { return another.items().size() == 1; }));
    EXPECT_FALSE(icon.missing());
}

TEST_F(TrayBusTest, HasAMenuForHostsThatOpenNothingElse) {
    FakeHost host{true};
    ASSERT_TRUE(waitUntil([&] { return !host.items().isEmpty(); }));
    EXPECT_TRUE(menu(host).at("Send clipboard").enabled);
    choose(host, "Open panel");
    choose(host, "Settings…");
    choose(host, "Quit");
    EXPECT_TRUE(waitUntil([this] { return panels == 1 && settings == 1 && quits == 1; }));

    computer.pasteboard.copy({{"UTF8_STRING", "from the menu"}});
    computer.sandbox.failNext(flood(1)); // Telegram makes it wait on the test's clock
    choose(host, "Send clipboard");
    ASSERT_TRUE(waitUntil([this] { return computer.store->busy(); }));
    EXPECT_FALSE(menu(host).at("Send clipboard").enabled) << "one send at a time";
    ASSERT_TRUE(waitUntil([this] {
        computer.clock.advance(std::chrono::seconds{1});
        return !computer.store->busy();
    }));
    EXPECT_EQ(computer.messages("notes").size(), 1U);
    EXPECT_TRUE(waitUntil([&] { return menu(host).at("Send clipboard").enabled; }));
    await(computer.store->forgetBot());
    EXPECT_TRUE(waitUntil([&] { return !menu(host).at("Send clipboard").enabled; }));
}

} // namespace quillon::test

int main(int argc, char** argv) {
    return quillon::test::runOnDesktop(argc, argv);
}
