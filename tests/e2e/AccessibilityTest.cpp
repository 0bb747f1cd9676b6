// What assistive technology is told about every window of the program.
#include "Desk.h"
#include "EndToEnd.h"

namespace quillon::test {

namespace {

const std::set<std::string> controlRoles{"push button",   "check box", "radio button", "text",
                                         "password text", "page tab",  "list item"};
const std::set<std::string> contentRoles{"label",        "image", "alert",
                                         "notification", "frame", "dialog"};

/// What is wrong with what a window shows, in sentences.
void collectFaults(const Control& control, std::map<std::string, int>& seen,
                   std::vector<std::string>& faults) {
    if (!control.is("showing")) return;
    const std::string role = control.role();
    const std::string name = control.name();
    const bool isControl = controlRoles.contains(role);
    if (name.empty() && (isControl || contentRoles.contains(role)))
        faults.push_back("a " + role + " has no name");
    if (name.find("**") != std::string::npos || name.find("⌃") != std::string::npos)
        faults.push_back("\"" + name + "\" cannot be read out");
    if (isControl && control.is("sensitive") && role != "list item" && !control.canBePressed())
        faults.push_back("nothing can be done with \"" + name + "\"");
    if (isControl && ++seen[role + " \"" + name + "\""] == 2)
        faults.push_back("there are two of " + role + " \"" + name + "\"");
    for (const Control& child : control.children())
        collectFaults(child, seen, faults);
}

struct Accessibility : EndToEnd {
    void SetUp() override {
        EndToEnd::SetUp();
        setUp();
        clipboard.copyText("a");
        ASSERT_EQ(quillon.run({"send"}).code, 0);
        ASSERT_TRUE(waitUntil([this] { return quillon.processes().empty(); }));
        program = quillon.start({});
        ASSERT_TRUE(waitUntil([] { return !Desk::icon().isEmpty(); }));
    }

    void TearDown() override {
        endProgram(*program);
        EndToEnd::TearDown();
    }

    void expectReadable(const std::string& what) {
        std::vector<std::string> faults;
        const std::vector<Control> windows = ScreenReader::windows();
        ASSERT_FALSE(windows.empty()) << what;
        for (const Control& window : windows) {
            std::map<std::string, int> seen;
            collectFaults(window, seen, faults);
        }
        EXPECT_THAT(faults, IsEmpty()) << what;
    }

    [[nodiscard]] bool becomes(const Control& control, const std::string& state, bool on = true) {
        return waitUntil([&] { return control.is(state) == on; });
    }

    Desk desk;
    ScreenReader reader;
    std::unique_ptr<QProcess> program;
};

} // namespace

TEST_F(Accessibility, EveryWindowCanBeReadAndWorked) {
    Desk::click(Desk::icon().center());
    EXPECT_EQ(reader.wait("push button", "Send clipboard to phone").description(), "“a”");
    EXPECT_FALSE(reader.shows("page tab", "Setup")) << "once set up, it starts without a window";
    expectReadable("the panel");
    reader.wait("push button", "Settings…").press();

    const Control header = reader.wait("push button", "Step 3: Make your group");
    expectReadable("the guide");
    EXPECT_TRUE(header.is("collapsed"));
    EXPECT_EQ(header.description(), "Done. Found Family");
    header.press();
    EXPECT_TRUE(becomes(header, "expanded"));

    const Control general = reader.wait("page tab", "General");
    general.press();
    EXPECT_TRUE(becomes(general, "selected"));
    EXPECT_FALSE(reader.wait("page tab", "Setup").is("selected"));
    const Control banner = reader.wait("check box", "Show a banner");
    const Control middle = reader.wait("radio button", "Banner in the middle");
    banner.press();
    EXPECT_TRUE(becomes(banner, "checked", false));
    EXPECT_TRUE(becomes(middle, "sensitive", false));
    banner.press();
    EXPECT_TRUE(becomes(middle, "sensitive"));
    expectReadable("the general settings, with a banner");
    reader.wait("page tab", "Topics").press();
    reader.wait("text", "Pictures").enter("Photos");
    reader.wait("push button", "Save names to Telegram").press();
    EXPECT_TRUE(reader.hears("Saved to Telegram."));
    expectReadable("the topics");

    general.press();
    reader.wait("push button", "Uninstall Quillon…").press();
    reader.wait("dialog", "Uninstall Quillon?");
    expectReadable("the question whether to uninstall");
    reader.wait("push button", "Cancel").press();
    EXPECT_TRUE(waitUntil([&] { return !reader.shows("dialog", "Uninstall Quillon?"); }));

    EXPECT_TRUE(waitUntil([&] {
        Desk::press("alt+F4"); // goes nowhere until the window has the focus back
        return !reader.shows("page tab", "General");
    }));
    EXPECT_EQ(quillon.run({}).code, 0);
    EXPECT_TRUE(becomes(reader.wait("page tab", "General"), "selected")) << "where it was";
}

TEST_F(Accessibility, TheKeyboardReachesEverythingInOrder) {
    EXPECT_EQ(quillon.run({}).code, 0);
    // A group of choices is one stop, at the choice that is taken.
    const std::vector<std::pair<std::string, std::vector<std::string>>> tabs{
        {"Setup",
         {"Step 1: Create your bot", "Step 2: Paste the token", "Step 3: Make your group",
          "Step 4: Create the topics"}},
        {"Topics", {"Text", "Pictures", "Files", "Videos"}},
        {"General",
         {"Control Alt V", "Play a sound", "Show a banner", "Banner in the top",
          "Banner in the middle", "Banner in the bottom", "Open Quillon when I log in",
          "Check for updates automatically", "Disconnect this computer", "Uninstall Quillon…"}}};
    for (const auto& [tab, controls] : tabs) {
        reader.waitForFocus(tab);
        for (const std::string& control : controls) {
            Desk::press("Tab");
            reader.waitForFocus(control);
        }
        Desk::press("Tab");
        reader.waitForFocus(tab); // and around
        Desk::press("ctrl+Next"); // Page Down
    }
    reader.waitForFocus("Setup");
    Desk::press("ctrl+shift+Tab");
    reader.waitForFocus("General");
    Desk::press("Left");
    reader.waitForFocus("Topics");
    Desk::press("alt+g");
    Desk::press("Tab Right");
    reader.waitForFocus("Control Alt P");
    EXPECT_TRUE(becomes(reader.wait("radio button", "Control Alt P"), "checked"));
    Desk::press("Tab space");
    EXPECT_TRUE(becomes(reader.wait("check box", "Play a sound"), "checked", false));
    Desk::press("Return");
    EXPECT_TRUE(becomes(reader.wait("check box", "Play a sound"), "checked"));

    Desk::press("alt+u");
    reader.waitForFocus("Uninstall"); // the default of the sheet
    Desk::press("Escape");
    reader.waitForFocus("Play a sound"); // where it was
}

} // namespace quillon::test
