// The program in a Wayland session, sway's or KWin's, beside native programs.
#include "EndToEnd.h"
#include "ScreenReader.h"

#include <QDBusMessage>
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

/// The application that has the keyboard, as sway knows it.
std::string focusedApplication(const Json& node) {
    if (node.value("focused", false)) return node.value("app_id", "");
    for (const char* inner : {"nodes", "floating_nodes"}) {
        for (const Json& child : node.value(inner, Json::array())) {
            if (const std::string found = focusedApplication(child); !found.empty()) return found;
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

    [[nodiscard]] std::size_t notes() const { return messages("📝 Notes & text").size(); }
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
    std::optional<Running> frontend;
    std::optional<Running> backend;
    if (!onSway()) {
        frontend.emplace("/usr/libexec/xdg-desktop-portal");
        backend.emplace("/usr/lib/x86_64-linux-gnu/libexec/xdg-desktop-portal-kde");
    }
    const auto program = startProgram();
    const auto shortcut = [this] { return desktop()["shortcut"]; };
    if (onSway()) {
        EXPECT_TRUE(waitUntil([&] { return shortcut()["way"] == "compositor-line"; }));
        sway(shortcut()["command"]);
        output("wtype", words("-M ctrl -M alt v"));
    } else {
        EXPECT_TRUE(waitUntil([&] { return shortcut()["state"] == "bound"; }));
        EXPECT_EQ(shortcut()["way"], "portal");
        QDBusMessage press = QDBusMessage::createMethodCall(
            QStringLiteral("org.kde.kglobalaccel"),
            QStringLiteral("/component/dev_vostrel_quillon"),
            QStringLiteral("org.kde.kglobalaccel.Component"), QStringLiteral("invokeShortcut"));
        QDBusConnection::sessionBus().call(press << QStringLiteral("send"));
    }
    EXPECT_TRUE(waitUntil([this] { return notes() == 1; }));
    endProgram(*program);
}

TEST_F(Wayland, ShowsTheBannerOverEverythingAndLeavesTheFocus) {
    if (!onSway()) return; // nobody but its own tools takes pictures of KWin's screen
    setUp();
    const Running other{"foot", words("--fullscreen -e sleep 100")};
    ASSERT_TRUE(waitUntil([] { return focusedApplication() == "foot"; }));
    for (const double scale : {1.0, 1.5, 2.0}) {
        SCOPED_TRACE(scale);
        sway("output HEADLESS-1 scale " + std::to_string(scale));
        clipboard.copyText("a banner at " + std::to_string(scale));
        waitUntil([] { return false; }, std::chrono::milliseconds{300});
        const QImage before = screen();
        EXPECT_EQ(quillon.run({"send"}).code, 0);
        waitUntil([] { return false; }, std::chrono::milliseconds{500});
        const QImage after = screen();
        const QRect banner = difference(before, after);
        EXPECT_NEAR(banner.center().x(), before.width() / 2, 2);
        EXPECT_GT(banner.width(), 200 * scale);
        EXPECT_EQ(focusedApplication(), "foot");
        EXPECT_TRUE(waitUntil([this] { return quillon.processes().empty(); }));
        EXPECT_TRUE(difference(before, screen()).isEmpty()) << "something stays";
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
