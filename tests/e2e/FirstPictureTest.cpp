// A new user, from the program's first start to the first picture on the phone: with the keyboard
// alone, and through assistive technology alone.
#include "Desk.h"
#include "EndToEnd.h"

namespace quillon::test {

struct FirstPicture : EndToEnd {
    void SetUp() override {
        EndToEnd::SetUp();
        write(browser, "#!/bin/sh\n{ echo \"$1\"; env; } > $0.new && mv $0.new $0.seen\n");
        std::filesystem::permissions(browser, std::filesystem::perms{0755});
        QProcessEnvironment& given = quillon.environment;
        given.insert(QStringLiteral("PATH"),
                     documents.path() + QLatin1Char{':'} + given.value(QStringLiteral("PATH")));
        for (const char* permission : {"DESKTOP_STARTUP_ID", "XDG_ACTIVATION_TOKEN"})
            given.insert(QLatin1String{permission}, QStringLiteral("permission"));
        program = quillon.start({});
        for (const char* permission : {"DESKTOP_STARTUP_ID", "XDG_ACTIVATION_TOKEN"})
            given.remove(QLatin1String{permission});
        // The guide comes by itself.
        ASSERT_TRUE(reader.wait("password text", "Bot token"));
    }

    void TearDown() override {
        if (program) program->terminate();
        if (program) program->waitForFinished();
        EndToEnd::TearDown();
    }

    static std::function<bool(const Control&)> named(const std::string& part) {
        return [part](const Control& control) {
            return control.name().find(part) != std::string::npos;
        };
    }

    /// A picture of 40 by 30 pixels, made by another program.
    static QByteArray picture() {
        QProcess convert;
        convert.start(QStringLiteral("convert"), words("-size 40x30 xc:orange png:-"));
        EXPECT_TRUE(convert.waitForFinished());
        return convert.readAllStandardOutput();
    }

    /// Copies a picture and presses the shortcut in another program's window.
    void sendPicture() {
        reader.forgetAnnouncements();
        clipboard.copy("image/png", picture());
        Desk::goToOtherWindow();
        Desk::press("ctrl+alt+v");
        EXPECT_TRUE(waitUntil([&] { return !messages("📸 Images").empty(); }));
    }

    void expectPictureOnPhone() {
        ASSERT_EQ(messages("📸 Images").size(), 1U);
        const Json photo = messages("📸 Images").front();
        EXPECT_EQ(photo["kind"], "photo");
        EXPECT_EQ(photo["width"], 40);
        EXPECT_EQ(photo["height"], 30);
    }

    void expectHistory() {
        EXPECT_TRUE(waitUntil([&] { return bool{reader.find(named("Image · 40×30"))}; }))
            << "the panel's history does not show the picture";
    }

    /// Goes along the controls until this one has the keyboard.
    void tabTo(const std::string& name) {
        constexpr int most = 20;
        std::string passed;
        for (int i = 0; i < most && reader.focused().name() != name; ++i) {
            const std::string before = reader.focused().name();
            passed += before + ", ";
            Desk::press("Tab");
            waitUntil([&] { return reader.focused().name() != before; });
        }
        EXPECT_EQ(reader.focused().name(), name) << "the keyboard went along " << passed;
    }

    /// Stands for the desktop's browser, and writes down how it was started.
    const std::filesystem::path browser{documents.path().toStdString() + "/xdg-open"};
    Desk desk;
    ScreenReader reader;
    std::unique_ptr<QProcess> program;
};

TEST_F(FirstPicture, WithTheKeyboardAlone) {
    Desk::goToOtherWindow();
    EXPECT_EQ(quillon.run({}).code, 0) << "as the desktop starts it";
    tabTo("Bot token");
    Desk::type(token);
    Desk::press("Return");
    phone.userSays(group, "hi");
    // What comes next has the keyboard already.
    reader.waitForFocus("Find my group");
    Desk::press("Return");
    reader.waitForFocus("Create the topics");
    Desk::press("space");
    reader.wait("notification", "You're all set.");

    sendPicture();
    expectPictureOnPhone();
    Desk::point({1270, 10});
    EXPECT_EQ(quillon.run({"panel"}).code, 0) << "as a shortcut of the desktop does";
    expectHistory();
    const QPoint panel = reader.wait("push button", "Send clipboard to phone").place().center();
    EXPECT_LT((panel - Desk::icon().center()).manhattanLength(), 500) << "far from its icon";
    reader.waitForFocus("Send clipboard to phone");
    Desk::press("Escape");
    EXPECT_TRUE(waitUntil([&] { return !reader.find(named("Image · 40×30")); }));
}

TEST_F(FirstPicture, ThroughAssistiveTechnologyAlone) {
    desk.takePanelAway();
    const auto press = [this](const char* name) { reader.wait("push button", name).press(); };
    press("Open BotFather");
    const std::string seen = browser.native() + ".seen";
    ASSERT_TRUE(waitUntil([&] { return std::filesystem::exists(seen); }));
    EXPECT_THAT(content(seen),
                AllOf(HasSubstr("https://t.me/BotFather\n"), Not(HasSubstr("QT_QPA_PLATFORM")),
                      Not(HasSubstr("permission"))));
    reader.wait("password text", "Bot token").enter("123456789:AAwrong");
    press("Connect");
    EXPECT_TRUE(reader.hears("Telegram didn't accept that bot token."));
    const Control field = reader.wait("password text", "Bot token");
    field.enter(token);
    EXPECT_THAT(field.text(), Not(HasSubstr("demo"))) << "the token is read out";
    press("Connect");
    phone.userSays(group, "hi");
    press("Find my group");
    press("Create the topics");
    EXPECT_TRUE(reader.hears("You're all set."));

    sendPicture();
    EXPECT_TRUE(reader.hears("Sent to 📸 Images"));
    expectPictureOnPhone();
    press("Open panel");
    expectHistory();
    desk.bringPanel();
    EXPECT_TRUE(waitUntil([] { return !Desk::icon().isEmpty(); })) << "does not come back";
}

} // namespace quillon::test
