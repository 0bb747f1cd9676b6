// What assistive technology is told about every window of the program.
#include "Desk.h"
#include "EndToEnd.h"

#include <map>
#include <set>

namespace quillon::test {

namespace {

using testing::IsEmpty;

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

class Accessibility : public EndToEnd {
protected:
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
        program->terminate();
        EXPECT_EQ(Program::finish(*program).code, 0);
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

    Desk desk;
    ScreenReader reader;
    std::unique_ptr<QProcess> program;
};

} // namespace

TEST_F(Accessibility, EveryWindowCanBeReadAndWorked) {
    Desk::click(Desk::icon().center());
    reader.wait("push button", "Send clipboard to phone");
    EXPECT_FALSE(reader.shows("page tab", "Setup")) << "once set up, it starts without a window";
    expectReadable("the panel");
    reader.wait("push button", "Settings…").press();
    reader.wait("push button", "Step 3: Make your group");
    expectReadable("the guide");
    reader.wait("page tab", "Topics").press();
    reader.wait("text", "Pictures");
    expectReadable("the topics");
    reader.wait("page tab", "General").press();
    reader.wait("check box", "Show a banner");
    expectReadable("the general settings");
    reader.wait("push button", "Uninstall Quillon…").press();
    reader.wait("dialog", "Uninstall Quillon?");
    expectReadable("the question whether to uninstall");
    reader.wait("push button", "Cancel").press();
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
          "Check for updates automatically", "Disconnect this Mac", "Uninstall Quillon…"}}};
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
}

} // namespace quillon::test
