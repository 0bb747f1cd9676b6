#include "platform/linux/desktop/LinuxWorkspace.h"
#include "platform/linux/desktop/RunningPrograms.h"
#include "platform/linux/files/Trash.h"
#include "support/Await.h"
#include "support/Files.h"
#include "support/Unprivileged.h"

#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>

namespace quillon::test {
namespace {

using fs::path;

constexpr const char* identifier = "dev.vostrel.quillon";

/// The first child of the process; empty while it has none.
std::string childOf(const std::string& process) {
    const std::string children = content(path{"/proc"} / process / "task" / process / "children");
    return children.substr(0, children.find(' '));
}

/// A process that runs this program until the end of the scope.
struct Running : QProcess {
    Running(const path& program, bool unprivileged) {
        setChildProcessModifier([unprivileged] {
            if (unprivileged && !becomeNobody()) ::_exit(1);
        });
        setWorkingDirectory(QStringLiteral("/"));
        start(QString::fromStdString(program), {QStringLiteral("1000")});
        EXPECT_TRUE(waitForStarted()) << program;
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
    ~Running() override {
        kill();
        waitForFinished();
    }
};

struct LinuxWorkspaceTest : testing::Test {
    LinuxWorkspaceTest() { fs::permissions(root, fs::perms{0755}); }
    // Qt's folder cannot remove every name.
    ~LinuxWorkspaceTest() override { fs::remove_all(root); }

    static path makeApplication(const path& app, const std::string& id = identifier) {
        fs::create_directories(app / "Contents/Linux");
        std::ofstream{app / "Contents/Info.plist"}
            << "<plist><dict><key>CFBundleIdentifier</key><string>" << id
            << "</string></dict></plist>";
        // Who may run but not read a program may not look into its process either.
        fs::copy_file("/bin/sleep", app / "Contents/Linux/quillon");
        fs::permissions(app / "Contents/Linux/quillon", fs::perms{0711});
        return app;
    }

    [[nodiscard]] std::vector<path> running() const {
        auto all = LinuxWorkspace{{}}.runningApplications(identifier);
        std::erase_if(all,
                      [&](const path& each) { return !each.native().starts_with(root.native()); });
        std::ranges::sort(all);
        return all;
    }

    /// The same as an ordinary user sees it.
    [[nodiscard]] bool nobodySees(const std::vector<path>& expected) const {
        return asNobody([&] { return running() == expected; });
    }

    QTemporaryDir folder;
    const path root{fs::canonical(folder.path().toStdString())};
};

TEST_F(LinuxWorkspaceTest, FindsRunningCopiesAlsoThoseThatHideTheirExecutable) {
    const path ours = makeApplication(root / "Downloads/Quil lon (1).app");
    const path other = makeApplication(root / "Other.app", "org.example.other");
    const path gone = makeApplication(root / "Gone.app");
    fs::create_directory(root / "bin");
    fs::create_symlink(ours / "Contents/Linux/quillon", root / "bin/quillon");
    fs::copy_file("/bin/sleep", root / "bin/sleep");
    std::vector<std::unique_ptr<Running>> processes;
    for (const path& program : {ours / "Contents/Linux/quillon", other / "Contents/Linux/quillon",
                                gone / "Contents/Linux/quillon", root / "bin/sleep"}) {
        processes.push_back(std::make_unique<Running>(program, true));
    }
    EXPECT_TRUE(nobodySees({ours, gone}));
    fs::remove(gone / "Contents/Linux/quillon");
    EXPECT_TRUE(nobodySees({ours, gone}));
    fs::remove_all(gone);
    processes.clear();
    EXPECT_TRUE(nobodySees({}));
    const Running throughLink{root / "bin/quillon", true};
    EXPECT_TRUE(nobodySees({ours}));
}

TEST_F(LinuxWorkspaceTest, LeavesTheProcessesOfOthersOut) {
    if (::geteuid() != 0) GTEST_SKIP() << "only root has processes of several users";
    const path ours = makeApplication(root / "Quillon.app");
    const Running roots{ours / "Contents/Linux/quillon", false};
    EXPECT_TRUE(nobodySees({}));
    EXPECT_EQ(running(), std::vector{ours});
    fs::remove(ours / "Contents/Linux/quillon");
    const path theirs = makeApplication(root / "Theirs.app");
    const Running nobodys{theirs / "Contents/Linux/quillon", true};
    EXPECT_EQ(running(), std::vector{ours}) << "also when its executable is gone";
}

TEST_F(LinuxWorkspaceTest, TrashesSoThatItCanBePutBack) {
    const path data = root / "share";
    Folders folders;
    folders.data = data;
    const path item = root / "a b\n%\xff.app";
    for (const char* content : {"first", "second"}) {
        fs::create_directory(item);
        write(item / "file", content);
        EXPECT_TRUE(await(LinuxWorkspace{folders}.trash(item)));
        EXPECT_FALSE(fs::exists(item));
    }
    fs::create_symlink("/nowhere", root / "link");
    EXPECT_TRUE(moveToTrash(root / "link", data));
    EXPECT_FALSE(moveToTrash(root / "nothing", data));

    const path trash = data / "Trash";
    EXPECT_EQ(content(trash / "files/a b\n%\xff.app/file"), "first");
    EXPECT_EQ(content(trash / "files/a b\n%\xff.2.app/file"), "second");
    EXPECT_EQ(fs::read_symlink(trash / "files/link"), "/nowhere");
    EXPECT_THAT(content(trash / "info/a b\n%\xff.2.app.trashinfo"),
                MatchesRegex("\\[Trash Info\\]\nPath=" + root.native() +
                             "/a%20b%0A%25%FF\\.app\n"
                             "DeletionDate=[0-9]+-[0-9]+-[0-9]+T[0-9:]+\n"));
    EXPECT_EQ(fs::status(trash).permissions(), fs::perms{0700});
    const auto notes = std::distance(fs::directory_iterator{trash / "info"}, {});
    EXPECT_EQ(notes, 3) << "one for each, none for what failed";
}

TEST_F(LinuxWorkspaceTest, TrashesOnAnotherFileSystemWhereItMay) {
    const path disk = root / "disk";
    const path data = root / "share";
    fs::create_directories(disk);
    const Mount mounted = Mount::memory(disk, "mode=755");
    if (!mounted) GTEST_SKIP() << "only root mounts";
    const std::string user = std::to_string(::getuid());
    const auto trash = [&](const std::string& name) {
        fs::create_directories(disk / "folder" / name);
        return moveToTrash(disk / "folder" / name, data);
    };

    EXPECT_TRUE(trash("own"));
    EXPECT_TRUE(fs::exists(disk / (".Trash-" + user) / "files/own"));
    EXPECT_THAT(content(disk / (".Trash-" + user) / "info/own.trashinfo"),
                HasSubstr("Path=folder/own\n"));
    fs::create_directory(disk / ".Trash");
    EXPECT_TRUE(trash("unsafe"));
    EXPECT_TRUE(fs::is_empty(disk / ".Trash")) << "everybody could empty it";
    fs::permissions(disk / ".Trash", fs::perms{01777});
    EXPECT_TRUE(trash("shared"));
    EXPECT_TRUE(fs::exists(disk / ".Trash" / user / "files/shared"));
    fs::rename(disk / ".Trash", disk / "away");
    fs::create_directory_symlink("away", disk / ".Trash");
    EXPECT_TRUE(trash("linked"));
    EXPECT_FALSE(fs::exists(disk / "away" / user / "files/linked"));

    fs::remove(disk / ".Trash");
    fs::create_directories(disk / "folder/copied/inner");
    const path theirs = root / "theirs";
    fs::create_directory(theirs);
    for (const path& each : {theirs, disk / "folder", disk / "folder/copied"})
        ASSERT_EQ(::chown(each.c_str(), nobody, nobody), 0);
    EXPECT_TRUE(asNobody([&] { return moveToTrash(disk / "folder/copied", theirs); }));
    EXPECT_TRUE(fs::exists(theirs / "Trash/files/copied"));
    EXPECT_FALSE(fs::exists(disk / "folder/copied"));
}

TEST_F(LinuxWorkspaceTest, OpensTheApplicationOnlyWhenTheProcessHasEnded) {
    const path app = root / "it's $(touch x) \"q\"\n.app";
    const path report = root / "report";
    fs::create_directories(app / "Contents/Linux");
    std::ofstream{app / "Contents/Linux/quillon"}
        << "#!/bin/sh\n{ echo \"$0\"; kill -0 \"$OLD\" 2>/dev/null && echo early; pwd\n"
           "ls -l /proc/$$/fd; } >'"
        << report.native() << ".new' 2>&1\nmv '" << report.native() << ".new' '" << report.native()
        << "'\n";
    fs::permissions(app / "Contents/Linux/quillon", fs::perms{0755});
    write(root / "leak");

    const pid_t child = ::fork();
    if (child == 0) {
        ::setenv("OLD", std::to_string(::getpid()).c_str(), 1);
        ::dup2(::open((root / "leak").c_str(), O_RDONLY), 77);
        LinuxWorkspace{{}}.openAfterExit(app);
        // The shell has asked at least once when it sleeps.
        const std::string self = std::to_string(::getpid());
        for (int i = 0; i < 5'000 && childOf(childOf(self)).empty(); ++i)
            ::usleep(1'000);
        ::_exit(childOf(childOf(self)).empty() ? 1 : 0);
    }
    int status = -1;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0) << "the shell does not wait";
    ASSERT_TRUE(waitUntil([&] { return fs::exists(report); }));
    const std::string told = content(report);
    EXPECT_THAT(told, StartsWith(app.native() + "/Contents/Linux/quillon\n/\n"));
    EXPECT_THAT(told, Not(HasSubstr("leak")));
}

} // namespace
} // namespace quillon::test
