#include "platform/linux/files/PosixFileTree.h"
#include "platform/linux/files/TreeCopy.h"
#include "support/Await.h"
#include "support/Files.h"
#include "support/Unprivileged.h"

#include <QTemporaryDir>

#include <sys/xattr.h>

namespace quillon::test {
namespace {

using fs::path;

constexpr const char* mark = "user.com.apple.quarantine";

void setModified(const path& item, time_t seconds, long nanoseconds) {
    const timespec times[]{{seconds, nanoseconds}, {seconds, nanoseconds}};
    ::utimensat(AT_FDCWD, item.c_str(), times, AT_SYMLINK_NOFOLLOW);
}

std::string attribute(const path& item, const char* name = mark) {
    std::string value(100, '\0');
    const ssize_t size = ::lgetxattr(item.c_str(), name, value.data(), value.size());
    return size < 0 ? "" : value.substr(0, static_cast<std::size_t>(size));
}

bool setAttribute(const path& item, const std::string& value = "0083", const char* name = mark) {
    return ::lsetxattr(item.c_str(), name, value.data(), value.size(), 0) == 0;
}

struct PosixFileTreeTest : testing::Test {
    PosixFileTreeTest() {
        fs::permissions(root, fs::perms{0755});
        write(root / "outside");
    }
    ~PosixFileTreeTest() override {
        fs::remove_all(elsewhere);
        // Qt's folder cannot remove every name.
        fs::remove_all(root);
    }

    /// An application folder with all that a folder may hold.
    path makeApplication() const {
        path app = root / "A b.app";
        fs::create_directories(app / "Contents/sealed");
        write(app / "Contents/quillon", std::string(1'100'000, 'q'));
        fs::permissions(app / "Contents/quillon", fs::perms{04751});
        write(app / "Contents/empty", "");
        write(app / "Contents/sealed/in\nside\xff");
        fs::create_hard_link(app / "Contents/quillon", app / "Contents/sealed/again");
        fs::create_symlink("../../outside", app / "Contents/link");
        fs::create_directory_symlink("/nowhere", app / "Contents/dangling");
        ::mkfifo((app / "Contents/pipe").c_str(), 0620);
        setAttribute(app / "Contents/empty");
        setAttribute(app / "Contents/sealed", "folder's");
        for (const char* name : {"Contents/link", "Contents/empty", "Contents/pipe"})
            setModified(app / name, 1'000'000'000, 123'456'789);
        fs::permissions(app / "Contents/sealed", fs::perms{0555});
        setModified(app / "Contents/sealed", 1'100'000'000, 5);
        return app;
    }

    QTemporaryDir folder;
    const path root{folder.path().toStdString()};
    /// On a file system of its own.
    const path elsewhere = "/dev/shm/quillon-test-" + std::to_string(::getpid());
    PosixFileTree tree;
};

TEST_F(PosixFileTreeTest, CopiesAndMovesEverythingAsItIsAlsoToAnotherFileSystem) {
    const path app = makeApplication();
    fs::create_directory(elsewhere);
    write(elsewhere / "probe");
    const bool there = setAttribute(elsewhere / "probe");
    const auto before = snapshot(app);
    ASSERT_EQ(before.size(), 10U);
    EXPECT_TRUE(await(tree.copy(app, root / "copy")));
    EXPECT_TRUE(await(tree.copy(app, elsewhere / "copy")));
    const path marked[]{"Contents/empty", "Contents/sealed"};
    const std::string marks[]{attribute(app / marked[0]), attribute(app / marked[1])};
    EXPECT_TRUE(await(tree.move(app, elsewhere / "moved")));
    for (const path& copy : {root / "copy", elsewhere / "copy", elsewhere / "moved"}) {
        EXPECT_EQ(snapshot(copy), before) << copy;
        if (!there && copy != root / "copy") continue;
        for (const int i : {0, 1})
            EXPECT_EQ(attribute(copy / marked[i]), marks[i]) << copy;
    }
    EXPECT_FALSE(tree.exists(app));
    EXPECT_TRUE(await(tree.move(elsewhere / "moved/Contents/dangling", root / "dangling")));
    EXPECT_EQ(fs::read_symlink(root / "dangling"), "/nowhere");
}

TEST_F(PosixFileTreeTest, DropsTheSetUserBitOfAFileThatWouldChangeItsOwner) {
    write(root / "tool");
    fs::permissions(root / "tool", fs::perms{06755});
    if (::chown((root / "tool").c_str(), nobody, nobody) != 0)
        GTEST_SKIP() << "only root gives files away";
    fs::permissions(root / "tool", fs::perms{06755});
    EXPECT_TRUE(await(tree.copy(root / "tool", root / "copy")));
    EXPECT_EQ(fs::status(root / "copy").permissions(), fs::perms{0755});
}

TEST_F(PosixFileTreeTest, LeavesNothingOfACopyThatFails) {
    const path app = makeApplication();
    fs::create_directories(root / "target");
    write(root / "taken", "mine");
    const path socket = app / "Contents/sealed/zz";
    ASSERT_EQ(::mknod(socket.c_str(), S_IFSOCK | 0600, 0), 0);
    EXPECT_FALSE(await(tree.copy(app, root / "target/copy")));
    fs::remove(socket);
    EXPECT_FALSE(await(tree.copy(app, app / "Contents/copy"))) << "into itself";
    EXPECT_FALSE(await(tree.copy(root / "nothing", root / "target/copy")));
    for (const auto& taken : {root / "taken", root / "target"}) {
        EXPECT_FALSE(await(tree.copy(app, taken)));
        EXPECT_FALSE(await(tree.move(app, taken)));
    }
    EXPECT_EQ(content(root / "taken"), "mine");
    EXPECT_TRUE(fs::is_empty(root / "target"));
    EXPECT_EQ(snapshot(app).size(), 10U);

    fs::permissions(app / "Contents/empty", fs::perms::none);
    fs::create_directory(root / "open");
    fs::permissions(root / "open", fs::perms::all);
    EXPECT_FALSE(asNobody([&] { return copyTree(app, root / "open/copy"); })) << "unreadable";
    EXPECT_TRUE(fs::is_empty(root / "open"));
}

TEST_F(PosixFileTreeTest, LeavesNothingOnAFullDisk) {
    const path app = makeApplication();
    fs::create_directory(root / "small");
    const Mount disk = Mount::memory(root / "small", "size=512k");
    if (!disk) GTEST_SKIP() << "only root mounts";
    EXPECT_FALSE(await(tree.move(app, root / "small/app")));
    EXPECT_TRUE(fs::is_empty(root / "small"));
    EXPECT_EQ(snapshot(app).size(), 10U);
}

TEST_F(PosixFileTreeTest, KnowsWhatAnOrdinaryUserMayWriteToAndTakeAway) {
    struct Case {
        const char* what;
        /// Modes of the folder, of the item in it, and of a folder in that.
        unsigned folder, item, inner;
        bool innerHolds, mine, deletable;
    };
    constexpr Case cases[]{
        {"plain", 0777, 0755, 0755, true, true, true},
        {"folder unwritable", 0755, 0755, 0755, true, true, false},
        {"item unwritable", 0777, 0555, 0755, true, true, false},
        {"inner unwritable", 0777, 0755, 0555, true, true, false},
        {"inner unwritable, but empty", 0777, 0755, 0555, false, true, true},
        {"somebody else's, sticky", 01777, 0777, 0777, true, false, false},
        {"somebody else's", 0777, 0777, 0777, true, false, true},
    };
    if (::geteuid() != 0) GTEST_SKIP() << "only root makes files of several users";
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        const path item = root / "f/item";
        fs::create_directories(item / "inner");
        if (each.innerHolds) write(item / "inner/file");
        for (const path& part : {item, item / "inner", item / "inner/file"})
            if (each.mine) (void)::lchown(part.c_str(), nobody, nobody);
        fs::permissions(item / "inner", fs::perms{each.inner});
        fs::permissions(item, fs::perms{each.item});
        fs::permissions(root / "f", fs::perms{each.folder});
        EXPECT_EQ(asNobody([&] { return tree.isDeletable(item); }), each.deletable);
        EXPECT_EQ(asNobody([&] { return tree.isWritable(root / "f"); }), (each.folder & 3) == 3);
        fs::remove_all(root / "f");
    }
    fs::create_directory_symlink(root, root / "link");
    EXPECT_TRUE(tree.isWritable(root / "link"));
    EXPECT_FALSE(tree.isWritable(root / "nothing"));
    EXPECT_FALSE(tree.isWritable(root / "outside")) << "a file is no folder";
}

TEST_F(PosixFileTreeTest, TakesAnAttributeFromEverythingInsideAndNothingElse) {
    const path app = makeApplication();
    fs::create_directory(root / "neighbour");
    write(root / "neighbour/file");
    fs::create_directory_symlink("../../neighbour", app / "Contents/sealed/out");
    std::vector<path> inside{app, app / "Contents"};
    for (const auto& entry : fs::recursive_directory_iterator{app / "Contents"})
        if (!entry.is_symlink() && !entry.is_fifo()) inside.push_back(entry.path());
    fs::permissions(app / "Contents/quillon", fs::perms{0300});
    const std::vector<path> outside{root / "outside", root / "neighbour", root / "neighbour/file"};
    std::vector<path> all = inside;
    all.insert(all.end(), outside.begin(), outside.end());
    for (const path& item : all)
        if (!setAttribute(item)) GTEST_SKIP() << "no attributes here";
    setAttribute(app / "Contents", "kept", "user.other");

    await(tree.removeAttribute(app, mark));
    for (const path& item : inside)
        EXPECT_EQ(attribute(item), "") << item;
    EXPECT_EQ(attribute(app / "Contents", "user.other"), "kept");
    await(tree.removeAttribute(app / "Contents/link", mark));
    await(tree.removeAttribute(app / "Contents/sealed/out", mark));
    for (const path& item : outside)
        EXPECT_EQ(attribute(item), "0083") << item;
}

TEST_F(PosixFileTreeTest, RemovesAndResolvesLinksAsWhatTheyAre) {
    const path app = makeApplication();
    fs::create_directories(root / "kept/inner");
    fs::create_directory_symlink(root / "kept", root / "link");
    fs::create_directory_symlink(root / "kept", app / "Contents/into");
    EXPECT_EQ(tree.resolved(root / "link/inner/none"), root / "kept/inner/none");
    EXPECT_TRUE(tree.exists(app / "Contents/dangling"));
    EXPECT_TRUE(await(tree.remove(app)));
    EXPECT_TRUE(await(tree.remove(root / "link")));
    EXPECT_TRUE(await(tree.remove(root / "nothing")));
    EXPECT_TRUE(fs::exists(root / "kept/inner"));
    EXPECT_TRUE(fs::exists(root / "outside"));
}

} // namespace
} // namespace quillon::test
