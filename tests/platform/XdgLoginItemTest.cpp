#include "platform/linux/desktop/XdgLoginItem.h"

#include "platform/linux/files/PosixFileSystem.h"
#include "support/Testing.h"

#include <QTemporaryDir>

#include <sys/stat.h>

namespace quillon::test {

using std::filesystem::path;

struct XdgLoginItemTest : testing::Test {
    [[nodiscard]] std::string content() const {
        return files.read(file, 1'000'000).bytes.toStdString();
    }
    void write(const std::string& text) const {
        files.createFolder(file.parent_path());
        files.write(file, QByteArray::fromStdString(text));
    }
    /// A program that can be started.
    [[nodiscard]] path program(const std::string& name) const {
        path made = home / name;
        files.createFolder(made.parent_path());
        files.write(made, {});
        std::filesystem::permissions(made, std::filesystem::perms::owner_all);
        return made;
    }

    QTemporaryDir folder;
    PosixFileSystem files;
    const path home = folder.path().toStdString();
    const Folders folders{.home = home,
                          .data = home / "data",
                          .cache = home / "cache",
                          .state = home / "state",
                          .config = home / "config"};
    const path file = home / "config/autostart/dev.vostrel.quillon.desktop";
};

TEST_F(XdgLoginItemTest, StartsAProgramOfAnyNameThatAnEntryCanHold) {
    // The second stands behind the home folder, and is null where the first is refused.
    const std::pair<const char*, const char*> cases[]{
        {"quillon", "quillon"},
        {"my apps/100 %u", R"(my apps/100 %%u")"},
        {R"(a"b`c$d)", R"(a\\"b\\`c\\$d")"},
        {R"(back\slash)", R"(back\\\\slash")"},
        {"caf\xc3\xa9", "caf\xc3\xa9"},
        {"caf\xe9", nullptr},
        {"two\nlines", nullptr},
        {"a=b", nullptr},
    };
    for (const auto& [name, exec] : cases) {
        SCOPED_TRACE(name);
        const path executable = program(name);
        XdgLoginItem item{folders, executable};
        EXPECT_EQ(item.registerItem(), exec != nullptr);
        if (exec) {
            std::string start =
                std::string_view{name}.find('%') != std::string_view::npos ? "env " : "";
            if (std::string_view{exec}.ends_with('"')) start += '"';
            EXPECT_THAT(content(),
                        HasSubstr("\nExec=" + start + home.native() + "/" + exec + "\n"));
            EXPECT_EQ(item.status(), LoginItem::Status::enabled);
            std::filesystem::remove(executable);
            EXPECT_EQ(item.status(), LoginItem::Status::notFound);
        }
        EXPECT_TRUE(item.unregisterItem());
        EXPECT_EQ(item.status(), LoginItem::Status::notRegistered);
        std::filesystem::remove(executable);
    }
    EXPECT_FALSE((XdgLoginItem{folders, "quillon"}.registerItem()));
}

TEST_F(XdgLoginItemTest, UnderstandsWhatOthersHaveWritten) {
    using enum LoginItem::Status;
    const std::string exec = "Exec=" + program("quillon").native() + "\n";
    const std::string start = "[Desktop Entry]\n";
    const std::pair<std::string, LoginItem::Status> cases[]{
        {start + exec, enabled},
        {start + "Exec = \"" + home.native() + "/quillon\" --quiet %U\r\n", enabled},
        {start + "Exec=env LANG=C sh\n", enabled},
        {start + "Exec=env " + home.native() + "/other\n", notFound},
        {start + "Exec=\"" + home.native() + "/quillon\n", notFound},
        {start + exec + "Hidden=true\r\n", requiresApproval},
        {start + exec + "Hidden=false\n#Hidden=true\nHidden[de]=true\n", enabled},
        {start + exec + "X-GNOME-Autostart-enabled = false", requiresApproval},
        {start + exec + "X-GNOME-Autostart-enabled=true\n[Other]\nHidden=true\n", enabled},
        {"[Other]\nHidden=true\n" + start + exec, enabled},
        {std::string(1000, '\0') + "\n[\n=\n", notFound},
        {start + exec + std::string(200'000, '#'), notRegistered},
    };
    const XdgLoginItem item{folders, "/nowhere"};
    for (const auto& [text, status] : cases) {
        write(text);
        EXPECT_EQ(item.status(), status) << text.substr(0, 300);
    }
}

TEST_F(XdgLoginItemTest, ChangesAnEntryNoMoreThanItMust) {
    const std::string before = "# mine\r\n[Desktop Entry]\r\nName=Q\r\nName[de]=K\r\n"
                               "Exec=/old %U\r\nTryExec=/old\r\nHidden=true\r\n\r\n"
                               "[Desktop Action x]\r\nExec=/other\r\n";
    const path executable = program("new place");
    XdgLoginItem item{folders, "/nowhere"};
    item.follow(executable);
    EXPECT_FALSE(std::filesystem::exists(file));
    write(before);
    item.follow(executable);
    const std::string name = home.native() + "/new place";
    std::string after = "# mine\r\n[Desktop Entry]\r\nName=Q\r\nName[de]=K\r\n"
                        "Exec=\"" +
                        name + "\"\r\nTryExec=" + name +
                        "\r\nHidden=true\r\n\r\n"
                        "[Desktop Action x]\r\nExec=/other\r\n";
    EXPECT_EQ(content(), after);
    EXPECT_EQ(item.status(), LoginItem::Status::requiresApproval);
    EXPECT_TRUE(item.registerItem());
    EXPECT_EQ(content(), after.erase(after.find("Hidden=true\r\n"), 13));
    EXPECT_EQ(item.status(), LoginItem::Status::enabled);

    write("[Desktop Entry]\nName=Q\n\n[Other]\n");
    item.follow(executable);
    EXPECT_EQ(content(), "[Desktop Entry]\nName=Q\nExec=\"" + name + "\"\n\n[Other]\n");
    // A start changes it only when what it names is gone.
    const std::string other = program("other").native();
    for (const std::string& kept : {std::string{"sh -c 'sleep 5; quillon'"}, other}) {
        std::string own = "[Desktop Entry]\nExec=";
        own.append(kept).append("\nHidden=true\n");
        write(own);
        item.followIfLost(executable);
        EXPECT_EQ(content(), own);
    }
    std::filesystem::remove(home / "other");
    item.followIfLost(executable);
    EXPECT_THAT(content(), HasSubstr("\nExec=\"" + name + "\"\nHidden=true\n"));
    for (const char* unusable : {"", "Hidden=true\n", "[Desktop Entry]\n"}) {
        write(unusable);
        EXPECT_TRUE(item.registerItem());
        EXPECT_EQ(item.status(), LoginItem::Status::enabled) << unusable;
    }
}

TEST_F(XdgLoginItemTest, LeavesAloneWhatIsNoFile) {
    XdgLoginItem item{folders, program("quillon")};
    files.createFolder(file.parent_path());
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    EXPECT_EQ(item.status(), LoginItem::Status::notRegistered);
    EXPECT_FALSE(item.registerItem());
    EXPECT_TRUE(item.unregisterItem());
    files.createFolder(file);
    EXPECT_EQ(item.status(), LoginItem::Status::notRegistered);
    EXPECT_FALSE(item.registerItem());
    EXPECT_FALSE(item.unregisterItem());
}

} // namespace quillon::test
