// The resident program and its shortcut, pressed while another window has the focus.
#include "EndToEndTest.h"

#include <xcb/xcb.h>

#include <memory>

namespace quillon::test {

namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::SizeIs;

/// Key codes by place: what the kernel's codes are to X.
constexpr const char* keyV = "55";
constexpr const char* keyP = "33";

QStringList words(const std::string& line) {
    return QString::fromStdString(line).split(QLatin1Char(' '));
}

void runTool(const std::string& tool, const std::string& arguments) {
    EXPECT_EQ(QProcess::execute(QString::fromStdString(tool), words(arguments)), 0)
        << tool << " " << arguments;
}

void press(const std::string& key, std::chrono::milliseconds held = 0ms) {
    runTool("xdotool", "keydown ctrl keydown alt keydown " + key);
    if (held > 0ms) waitUntil([] { return false; }, held);
    runTool("xdotool", "keyup " + key + " keyup alt keyup ctrl");
}

/// Another program that holds Control, Alt and V for as long as the object lives.
class Rival {
public:
    Rival() {
        const xcb_window_t root =
            xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root;
        const auto cookie =
            xcb_grab_key_checked(connection_.get(), 0, root, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1,
                                 55, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        EXPECT_EQ(xcb_request_check(connection_.get(), cookie), nullptr);
    }

private:
    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection_{
        xcb_connect(nullptr, nullptr), xcb_disconnect};
};

class HotKey : public EndToEnd {
protected:
    void SetUp() override {
        EndToEnd::SetUp();
        setUp();
        // Shows the keys that reach it, in a window that takes the focus.
        window.start(QStringLiteral("xev"), words("-event keyboard -name probe"));
        EXPECT_TRUE(waitUntil([] {
            // Fails for as long as the window is not on the screen.
            return QProcess::execute(QStringLiteral("xdotool"),
                                     words("search --onlyvisible --name probe windowfocus")) == 0;
        }));
    }

    void TearDown() override {
        if (program) program->terminate();
        if (program) program->waitForFinished();
        window.kill();
        window.waitForFinished();
        runTool("setxkbmap", "us");
        EndToEnd::TearDown();
    }

    [[nodiscard]] std::size_t notes() const { return messages("📝 Notes & text").size(); }

    /// Starts the program, and returns once it hears the key.
    void startAndWait(const std::string& key) {
        program = quillon.start({});
        clipboard.copyText("first");
        const auto heard = [&] {
            press(key);
            return waitUntil([&] { return notes() > seen; }, 2s);
        };
        EXPECT_TRUE(waitUntil(heard));
        waitUntil([&] { return false; }, 500ms); // for a press it has heard late
        seen = notes();
        window.readAllStandardOutput(); // which has the presses that came too early
    }

    void expectSends(std::size_t count, const std::string& what) {
        EXPECT_TRUE(waitUntil([&] { return notes() >= seen + count; })) << what;
        waitUntil([&] { return false; }, 300ms);
        EXPECT_EQ(notes(), seen + count) << what;
        seen = notes();
    }

    std::unique_ptr<QProcess> program;
    QProcess window;
    std::size_t seen = 1; ///< the welcome message
};

} // namespace

TEST_F(HotKey, SendsFromAnyWindowWhateverTheLayout) {
    startAndWait(keyV);
    for (const std::string layout : {"ru", "us -variant dvorak", "us"}) {
        runTool("setxkbmap", layout);
        clipboard.copyText("with layout " + layout);
        press(keyV);
        expectSends(1, layout);
    }
    EXPECT_EQ(messages("📝 Notes & text").back()["text"], "with layout us");
    press(keyV, 2s);
    expectSends(1, "a key that is held");
    runTool("xdotool", "key Num_Lock key Caps_Lock");
    press(keyV);
    runTool("xdotool", "key Num_Lock key Caps_Lock");
    expectSends(1, "with both locks on");

    press(keyP);
    expectSends(0, "another key");
    const QByteArray others = window.readAllStandardOutput();
    EXPECT_TRUE(others.contains("keycode 33")) << "it goes to the window";
    EXPECT_FALSE(others.contains("keycode 55")) << "the window hears the shortcut as well";
}

TEST_F(HotKey, LeavesAKeyToWhoeverHasIt) {
    {
        const Rival rival;
        program = quillon.start({});
        EXPECT_TRUE(waitUntil([&] {
            return QString::fromUtf8(program->readAllStandardError())
                .contains(QStringLiteral("⌃⌥V is already used by another app. Pick another "
                                         "shortcut in Settings."));
        }));
        clipboard.copyText("a");
        press(keyV);
        expectSends(0, "a key that another program holds");
        EXPECT_EQ(program->state(), QProcess::Running);
        program->terminate();
        EXPECT_EQ(Program::finish(*program).code, 0);
    }
    startAndWait(keyV);
}

TEST_F(EndToEnd, HandsCommandsToTheProgramThatRuns) {
    const auto program = quillon.start({});
    EXPECT_TRUE(waitUntil(Program::hasName));
    EXPECT_EQ(quillon.run({}).code, 0) << "one is enough, which comes to the front";
    const auto expectOutput = [&](const std::vector<std::string>& arguments,
                                  const std::string& expected, const std::string& input = {}) {
        EXPECT_EQ(quillon.run(arguments, input).out, expected) << arguments.front();
    };
    expectOutput({"connect"}, "Connected to quillon_demo_bot\n", std::string{token} + "\nmore");
    phone.userSays(group, "hi");
    expectOutput({"find-group"}, "Found “Family”\n");
    expectOutput({"create-topics"}, "📝 Notes & text\n📸 Images\n📎 Files\n🎬 Videos\n");
    EXPECT_EQ(Json::parse(quillon.run({"status", "--json"}).out)["ready"], true);
    EXPECT_EQ(quillon.run({"send"}).err, "The clipboard is empty\n");
    clipboard.copyText("a");
    // It would wait for the data folder, and then fail, if it were to do it itself.
    expectOutput({"send"}, "sent\t📝 Notes & text\ta\n");
    EXPECT_EQ(quillon.run({"rename-topics"}).code, 0);
    EXPECT_EQ(Program::processes().size(), 1) << "no other shows the banner";
    program->terminate();
    EXPECT_EQ(Program::finish(*program).code, 0);
    EXPECT_THAT(quillon.run({"history"}).out, HasSubstr("\ta\n")) << "and what it did stays";
}

} // namespace quillon::test
