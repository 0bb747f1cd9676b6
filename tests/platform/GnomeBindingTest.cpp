#include "platform/linux/shortcut/GnomeBinding.h"

#include "platform/linux/shortcut/DesktopSettings.h"
#include "platform/linux/shortcut/PortalHotKeys.h"
#include "support/Await.h"
#include "support/Files.h"
#include "support/Testing.h"

#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>

namespace quillon::test {
namespace {

using Outcome = BindingReport::Outcome;

constexpr const char* mediaKeys = "org.gnome.settings-daemon.plugins.media-keys";
constexpr const char* binding = "org.gnome.settings-daemon.plugins.media-keys.custom-keybinding";
constexpr const char* listed = "custom-keybindings";
constexpr const char* others =
    "/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/custom0/";

/// Those parts of GNOME's schemas that matter.
constexpr const char* schemas = R"(<schemalist>
<schema id="org.gnome.settings-daemon.plugins.media-keys" path="/org/gnome/settings-daemon/plugins/media-keys/">
<key name="custom-keybindings" type="as"><default>[]</default></key>
<key name="max-screencast-length" type="i"><default>30</default></key>
<key name="terminal" type="as"><default>['&lt;Ctrl&gt;&lt;Mod1&gt;c']</default></key></schema>
<schema id="org.gnome.settings-daemon.plugins.media-keys.custom-keybinding">
<key name="name" type="s"><default>''</default></key>
<key name="binding" type="s"><default>''</default></key>
<key name="command" type="s"><default>''</default></key></schema>
</schemalist>)";

/// Has GIO use these schemas, and settings in memory; it does so from its first use on.
void useSettingsOfOurOwn() {
    static const QTemporaryDir folder;
    if (qEnvironmentVariableIsSet("GSETTINGS_SCHEMA_DIR")) return;
    write(folder.filePath(QStringLiteral("test.gschema.xml")).toStdString(), schemas);
    ASSERT_EQ(QProcess::execute(QStringLiteral("glib-compile-schemas"), {folder.path()}), 0);
    qputenv("GSETTINGS_SCHEMA_DIR", folder.path().toUtf8());
    qputenv("GSETTINGS_BACKEND", "memory");
}

TEST(GnomeBinding, KnowsTheSameKeysInEverySpelling) {
    const std::tuple<const char*, const char*, bool> cases[]{
        {"<Control><Alt>v", "<Alt><Primary>V", true},
        {"<Control><Alt>v", "<Ctrl><Mod1>v", true},
        {"<Control><Alt>v", "<Control><Alt><Shift>v", false},
        {"<Control><Alt>v", "<Control><Alt>p", false},
        {"<Control><Alt>v", "<Control>v", false},
        {"", "", false},
    };
    for (const auto& [one, other, same] : cases)
        EXPECT_EQ(areSameKeys(one, other), same) << one << " " << other;
    EXPECT_EQ(shownKeys("<Primary><Alt>v"), "Ctrl+Alt+V");
}

TEST(GnomeBinding, IsMadeWhenToldFollowsTheProgramAndGoesAlone) {
    useSettingsOfOurOwn();
    const auto list = DesktopSettings::open(mediaKeys);
    ASSERT_TRUE(list);
    const auto foreign = DesktopSettings::open(binding, others);
    foreign->setText("binding", "<Primary><Alt>p");
    foreign->setText("command", "xterm");
    list->setTexts(listed, {"no path", others});

    const auto outcome = [](PhysicalKey key) {
        return gnomeBinding::follow(key, "/q send").outcome;
    };
    EXPECT_EQ(outcome(PhysicalKey::v), Outcome::absent);
    EXPECT_EQ(outcome(PhysicalKey::p), Outcome::taken) << "by a command of the user's";
    EXPECT_EQ(outcome(PhysicalKey::c), Outcome::taken) << "by the desktop itself";
    EXPECT_EQ(gnomeBinding::add(PhysicalKey::p, "/q send", "Send").outcome, Outcome::taken);
    EXPECT_THAT(list->texts(listed), ElementsAre("no path", others)) << "looking changes nothing";

    EXPECT_EQ(gnomeBinding::add(PhysicalKey::v, "/q send", "Send").trigger, "Ctrl+Alt+V");
    ASSERT_THAT(list->texts(listed), ElementsAre("no path", others, EndsWith("/quillon-send-v/")));
    const auto own = DesktopSettings::open(binding, list->texts(listed).back().c_str());
    EXPECT_EQ(own->text("command"), "/q send");
    EXPECT_EQ(own->text("binding"), "<Control><Alt>v");
    own->setText("binding", "<Super>s"); // the user likes another better
    const BindingReport moved = gnomeBinding::follow(PhysicalKey::v, "/new/q send");
    EXPECT_EQ(moved.outcome, Outcome::present);
    EXPECT_EQ(moved.trigger, "Super+S");
    EXPECT_EQ(own->text("command"), "/new/q send");

    EXPECT_EQ(outcome(PhysicalKey::p), Outcome::taken) << "another shortcut is picked";
    EXPECT_THAT(list->texts(listed), ElementsAre("no path", others));
    EXPECT_EQ(own->text("command"), "");
    EXPECT_EQ(gnomeBinding::add(PhysicalKey::v, "/q send", "Send").outcome, Outcome::present);
    gnomeBinding::removeAll();
    EXPECT_THAT(list->texts(listed), ElementsAre("no path", others));
    EXPECT_EQ(foreign->text("command"), "xterm");

    for (const char* const users : {"quillon send", "'/q' send"}) {
        foreign->setText("command", users);
        EXPECT_EQ(gnomeBinding::add(PhysicalKey::v, "/q send", "Send").trigger, "Ctrl+Alt+P");
    }
    EXPECT_THAT(list->texts(listed), ElementsAre("no path", others));
    list->setTexts(listed, {});
}

TEST(GnomeBinding, IsLookedAtAgainWhenTheUserComesBackFromTheDesktopsSettings) {
    useSettingsOfOurOwn();
    PortalHotKeys hotKeys{{.session = {.wayland = true, .desktops = {"gnome"}},
                           .executable = "/q",
                           .bus = QStringLiteral("unix:path=/nowhere")}};
    HotKeyState state;
    hotKeys.observe([&](PhysicalKey, const HotKeyState& now) { state = now; });
    const auto registration = hotKeys.registerHotKey(PhysicalKey::v);
    const auto offersIt = [&] { return state.offer == HotKeyState::Offer::addBinding; };
    EXPECT_TRUE(waitUntil(offersIt));
    registration->takeOffer();
    EXPECT_TRUE(waitUntil([&] { return state.trigger == "Ctrl+Alt+V"; }));

    const auto paths = DesktopSettings::open(mediaKeys)->texts(listed);
    ASSERT_FALSE(paths.empty());
    DesktopSettings::open(binding, paths.back().c_str())->setText("binding", "<Super>s");
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    EXPECT_TRUE(waitUntil([&] { return state.trigger == "Super+S"; }));
    gnomeBinding::removeAll();
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    EXPECT_TRUE(waitUntil(offersIt));
}

} // namespace
} // namespace quillon::test
