// The program in a Wayland session, sway's or KWin's, beside native programs.
#include "EndToEnd.h"
#include "ScreenReader.h"
#include "VirtualKeyboard.h"
#include "platform/linux/shortcut/PortalShortcut.h"
#include "support/SessionBus.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusReply>
#include <QImage>

namespace quillon::test {

namespace {

/// Runs the tool to its end and gives its standard output.
QByteArray output(const char* tool, const QStringList& arguments) {
    QProcess process;
    process.start(QString::fromLatin1(tool), arguments);
    EXPECT_TRUE(process.waitForFinished()) << tool;
    EXPECT_EQ(process.exitCode(), 0) << tool << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

bool onSway() {
    return qEnvironmentVariableIsSet("SWAYSOCK");
}

void sway(const std::string& command) {
    output("swaymsg", {QString::fromStdString(command)});
}

/// Presses the keys of the program's shortcut with this id. Newer versions of Plasma keep it under
/// the program's whole name.
void pressInPlasma(const QString& shortcut) {
    const auto call = [](const QString& path, const char* interface, const char* method,
                         const QVariantList& arguments = {}) {
        QDBusMessage message =
            QDBusMessage::createMethodCall(QStringLiteral("org.kde.kglobalaccel"), path,
                                           QLatin1String{interface}, QLatin1String{method});
        message.setArguments(arguments);
        return QDBusConnection::sessionBus().call(message);
    };
    const QDBusReply<QList<QDBusObjectPath>> components =
        call(QStringLiteral("/kglobalaccel"), "org.kde.KGlobalAccel", "allComponents");
    for (const QDBusObjectPath& component : components.value()) {
        if (component.path().endsWith(QStringLiteral("quillon")))
            call(component.path(), "org.kde.kglobalaccel.Component", "invokeShortcut", {shortcut});
    }
}

/// The application that has the keyboard, as sway knows it.
std::string focusedApplication(const Json& node) {
    if (node.value("focused", false)) return node.value("app_id", "");
    for (const char* inner : {"nodes", "floating_nodes"}) {
        for (const Json& child : node.value(inner, Json::array())) {
            if (std::string found = focusedApplication(child); !found.empty()) return found;
        }
    }
    return {};
}
std::string focusedApplication() {
    return focusedApplication(Json::parse(output("swaymsg", words("-t get_tree")).toStdString()));
}

QImage screen() {
    return QImage::fromData(output("grim", words("-"))).convertToFormat(QImage::Format_RGB32);
}

/// The smallest rectangle with all pixels in which the pictures differ.
QRect difference(const QImage& one, const QImage& other) {
    QRect found;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y)) found |= QRect{x, y, 1, 1};
        }
    }
    return found;
}

/// A program that runs as long as this.
struct Running : QProcess {
    Running(const char* program, const QStringList& arguments = {}) {
        setStandardOutputFile(nullDevice());
        setStandardErrorFile(nullDevice());
        start(QString::fromLatin1(program), arguments);
        EXPECT_TRUE(waitForStarted()) << program;
    }
    ~Running() override {
        kill();
        waitForFinished();
    }
};

} // namespace

struct Wayland : EndToEnd {
    /// What the program says of the desktop.
    [[nodiscard]] Json desktop() const {
        return Json::parse(quillon.run({"status", "--json"}).out)["desktop"];
    }

    /// Whether the phone gets the text within a while.
    [[nodiscard]] bool arrives(const std::string& text) const {
        return waitUntil([&] {
            const auto notes = messages("📝 Notes & text");
            return std::ranges::any_of(
                notes, [&](const Json& each) { return each.value("text", "") == text; });
        });
    }
};

TEST_F(Wayland, TakesWhatNativeProgramsCopy) {
    setUp();
    EXPECT_EQ(desktop()["session"], "wayland");
    EXPECT_EQ(desktop()["clipboard"], "wlr-data-control");
    EXPECT_EQ(quillon.run({"send"}).err, "The clipboard is empty\n");
    clipboard.copyText("Grüße");
    EXPECT_EQ(quillon.run({"send"}).out, "sent\t📝 Notes & text\tGrüße\n");
    clipboard.copy("image/png", output("convert", words("-size 40x30 xc:orange png:-")));
    EXPECT_EQ(quillon.run({"send"}).code, 0);
    clipboard.copyFiles({file("a b.txt"), file("c.txt")});
    EXPECT_EQ(quillon.run({"send"}).code, 0);
    EXPECT_THAT(messages("📎 Files"), SizeIs(2));
    const QByteArray bitmap = output("convert", words("-size 4000x4000 xc:orange bmp3:-"));
    EXPECT_GT(bitmap.size(), 45'000'000);
    clipboard.copy("image/bmp", bitmap);
    EXPECT_EQ(quillon.run({"send"}).code, 0);
    EXPECT_THAT(messages("📸 Images"), SizeIs(2));
}

/// By the line for sway's own file that the program shows, and on KWin by KDE's portal.
TEST_F(Wayland, SendsAtThePressOfTheShortcut) {
    setUp();
    clipboard.copyText("by key");
    std::optional<Running> backend;
    std::optional<Running> frontend;
    if (!onSway()) {
        // The bus would start each when it is called.
        backend.emplace("/usr/lib/x86_64-linux-gnu/libexec/xdg-desktop-portal-kde");
        EXPECT_TRUE(waitUntil([] {
            return QDBusConnection::sessionBus().interface()->isServiceRegistered(
                QStringLiteral("org.freedesktop.impl.portal.desktop.kde"));
        }));
        frontend.emplace("/usr/libexec/xdg-desktop-portal");
    }
    const auto program = startProgram();
    const auto shortcut = [this] { return desktop()["shortcut"]; };
    if (onSway()) {
        EXPECT_TRUE(waitUntil([&] { return shortcut()["way"] == "compositor-line"; }));
        sway(shortcut()["command"]);
        pressControlAltV();
    } else {
        EXPECT_TRUE(waitUntil([&] { return shortcut()["state"] == "bound"; }));
        EXPECT_EQ(shortcut()["way"], "portal");
        pressInPlasma(QStringLiteral("send-v"));
    }
    EXPECT_TRUE(arrives("by key"));
    endProgram(*program);
}

/// The real portal, with a desktop's side of our own behind it.
TEST_F(Wayland, SendsAtThePressThatAPortalTellsOf) {
    setUp();
    clipboard.copyText("by portal");
    write((documents.path() + QStringLiteral("/desk.portal")).toStdString(),
          "[portal]\nDBusName=org.freedesktop.impl.portal.desktop.desk\n"
          "Interfaces=org.freedesktop.impl.portal.GlobalShortcuts\n"
          "UseIn=sway;KDE\n");
    qputenv("XDG_DESKTOP_PORTAL_DIR", documents.path().toLocal8Bit());
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    const QVariantMap bound{
        {QStringLiteral("shortcuts"),
         QVariant::fromValue(QList<PortalShortcut>{
             {QStringLiteral("send-v"),
              {{QStringLiteral("trigger_description"), QStringLiteral("Press it")}}}})}};
    const BusService desk{"org.freedesktop.impl.portal.desktop.desk",
                          {{"CreateSession", QVariantList{0U, QVariantMap{}}},
                           {"BindShortcuts", QVariantList{0U, bound}},
                           {"GetAll", QVariantList{QVariantMap{{QStringLiteral("version"), 1U}}}}}};
    const Running portal{"/usr/libexec/xdg-desktop-portal"};
    const auto program = startProgram();
    EXPECT_TRUE(waitUntil([&] { return desktop()["shortcut"]["state"] == "bound"; }));
    EXPECT_EQ(desktop()["shortcut"]["trigger"], "Press it");
    desk.sendSignal("/org/freedesktop/portal/desktop",
                    "org.freedesktop.impl.portal.GlobalShortcuts", "Activated",
                    {desk.calls("CreateSession").value(0).arguments().value(1),
                     QStringLiteral("send-v"), quint64{1}, QVariantMap{}});
    EXPECT_TRUE(arrives("by portal"));
    endProgram(*program);
    qunsetenv("XDG_DESKTOP_PORTAL_DIR");
}

TEST_F(Wayland, ShowsTheBannerOverEverythingAndLeavesTheFocus) {
    if (!onSway()) return; // nobody but its own tools takes pictures of KWin's screen
    setUp();
    const Running other{"foot", words("--fullscreen -e sleep 100")};
    ASSERT_TRUE(waitUntil([] { return focusedApplication() == "foot"; }));
    for (const double scale : {1.0, 1.5, 2.0}) {
        SCOPED_TRACE(scale);
        sway("output HEADLESS-1 scale " + std::to_string(scale));
        clipboard.copyText("at a scale of " + std::to_string(scale));
        QImage before;
        EXPECT_TRUE(waitUntil([&] { return std::exchange(before, screen()) == before; }));
        EXPECT_EQ(quillon.run({"send"}).code, 0);
        QRect banner;
        EXPECT_TRUE(waitUntil([&] {
            const QRect last = std::exchange(banner, difference(before, screen()));
            return banner == last && !banner.isEmpty();
        }));
        EXPECT_NEAR(banner.center().x(), before.rect().center().x(), 2);
        EXPECT_GT(banner.width(), 200 * scale);
        EXPECT_LT(banner.bottom(), 100 * scale);
        EXPECT_EQ(focusedApplication(), "foot");
        for (const int shown : quillon.processes())
            ::kill(shown, SIGTERM);
        EXPECT_TRUE(waitUntil([&] { return screen() == before; })) << "something stays";
    }
}

TEST_F(Wayland, LeadsFromTheFirstStartToTheFirstPicture) {
    ScreenReader reader;
    const auto program = quillon.start({});
    const auto press = [&](const char* name) { reader.wait("push button", name).press(); };
    reader.wait("password text", "Bot token").enter(token);
    press("Connect");
    phone.userSays(group, "hi");
    press("Find my group");
    press("Create the topics");
    EXPECT_TRUE(reader.hears("You're all set."));
    clipboard.copy("image/png", output("convert", words("-size 40x30 xc:orange png:-")));
    press("Open panel");
    press("Send clipboard to phone");
    EXPECT_TRUE(waitUntil([&] { return messages("📸 Images").size() == 1; }));
    EXPECT_TRUE(reader.hears("Sent to 📸 Images"));
    endProgram(*program);
}

} // namespace quillon::test
