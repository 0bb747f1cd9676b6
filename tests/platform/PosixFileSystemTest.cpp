#include "platform/linux/files/PosixFileSystem.h"

#include "support/Await.h"
#include "support/Files.h"
#include "support/Unprivileged.h"

#include <QTemporaryDir>

#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <set>

namespace quillon::test {

using Outcome = FileReading::Outcome;
using std::filesystem::path;

struct PosixFileSystemTest : testing::Test {
    // Qt leaves files behind whose names are not UTF-8.
    ~PosixFileSystemTest() override { std::filesystem::remove_all(root); }

    [[nodiscard]] path at(const char* name) const { return root / name; }

    [[nodiscard]] size_t entries() const {
        return static_cast<size_t>(std::distance(std::filesystem::directory_iterator{root}, {}));
    }

    QTemporaryDir folder;
    path root{folder.path().toStdString()};
    PosixFileSystem files;
};

TEST_F(PosixFileSystemTest, TellsWhatLiesAtAPath) {
    ASSERT_TRUE(files.write(at("ten"), QByteArray("0123\x00\xff\n789", 10)));
    ASSERT_TRUE(files.write(at("empty"), {}));
    ASSERT_TRUE(files.write(at("not \xff\xfe UTF-8\n"), "name"));
    std::filesystem::create_symlink(at("ten"), at("link"));
    std::filesystem::create_symlink(at("nowhere"), at("dangling"));
    ASSERT_EQ(::mkfifo(at("pipe").c_str(), 0600), 0);
    ASSERT_EQ(::mknod(at("socket").c_str(), S_IFSOCK | 0600, 0), 0);

    struct Case {
        path where;
        qint64 limit;
        Outcome outcome;
        qint64 size;
    };
    const Case cases[]{
        {at("ten"), 10, Outcome::read, 10},
        {at("ten"), 9, Outcome::tooBig, 10},
        {at("link"), 10, Outcome::read, 10},
        {at("empty"), 0, Outcome::read, 0},
        {at("not \xff\xfe UTF-8\n"), 10, Outcome::read, 4},
        {root, 10, Outcome::directory, 0},
        {at("missing"), 10, Outcome::unreadable, 0},
        {at("dangling"), 10, Outcome::unreadable, 0},
        {at("pipe"), 10, Outcome::unreadable, 0},
        {at("socket"), 10, Outcome::unreadable, 0},
        {"/dev/zero", 10, Outcome::unreadable, 0},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.where);
        const FileLoading loading = files.load(each.where, each.limit);
        const FileReading reading = await(loading.result());
        EXPECT_EQ(loading.progress(), reading.bytes.size());
        EXPECT_EQ(reading.outcome, each.outcome);
        EXPECT_EQ(reading.size, each.size);
        EXPECT_EQ(reading.bytes.size(), each.outcome == Outcome::read ? each.size : 0);
    }
    EXPECT_EQ(content(at("ten")), std::string("0123\x00\xff\n789", 10));

    std::filesystem::permissions(root, std::filesystem::perms::all);
    std::filesystem::permissions(at("ten"), std::filesystem::perms::none);
    EXPECT_TRUE(asNobody([&] { return files.read(at("ten"), 9).outcome == Outcome::unreadable; }));
}

TEST_F(PosixFileSystemTest, ReadsNoMoreThanTheLimitOfAFileThatHidesItsSize) {
    const FileReading tooBig = files.read("/proc/self/smaps", 10'000);
    EXPECT_EQ(tooBig.outcome, Outcome::tooBig);
    EXPECT_GT(tooBig.size, 10'000);
    EXPECT_TRUE(tooBig.bytes.isEmpty());
}

TEST_F(PosixFileSystemTest, ReplacesContentForItsOwnerAlone) {
    for (const bool atomically : {false, true}) {
        SCOPED_TRACE(atomically);
        const path where = at(atomically ? "a" : "b");
        const auto write = [&](const QByteArray& bytes) {
            return atomically ? files.writeAtomically(where, bytes) : files.write(where, bytes);
        };
        ASSERT_TRUE(write("a long first content"));
        EXPECT_EQ(modeOf(where), fs::perms{0600});
        ASSERT_TRUE(write("short"));
        EXPECT_EQ(content(where), "short");
    }
    EXPECT_EQ(entries(), 2U);
}

/// Runs the work in a process that is killed at the beginning or the end of a system call, of which
/// this is the number; false when it ended before.
static bool killedAt(int stop, const std::function<void()>& work) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        ::kill(::getpid(), SIGTRAP);
        work();
        ::_exit(0);
    }
    int status = 0;
    for (::waitpid(child, &status, 0); stop > 0 && WIFSTOPPED(status); --stop) {
        ::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
        ::waitpid(child, &status, 0);
    }
    if (!WIFSTOPPED(status)) return false;
    ::kill(child, SIGKILL);
    ::waitpid(child, &status, 0);
    return true;
}

TEST_F(PosixFileSystemTest, LeavesTheOldOrTheNewFileWhereverItIsKilled) {
    const QByteArray old(100'000, 'o');
    const QByteArray fresh(50'000, 'n');
    int stops = 0;
    bool killed = true;
    std::set<std::string> left;
    while (killed) {
        ASSERT_TRUE(files.write(at("file"), old));
        killed = killedAt(++stops, [&] { files.writeAtomically(at("file"), fresh); });
        left.insert(content(at("file")));
        files.removeLeftovers(at("file"));
        EXPECT_EQ(entries(), 1U);
    }
    EXPECT_GT(stops, 8) << "it opens, writes, closes and renames";
    EXPECT_THAT(left, UnorderedElementsAre(old.toStdString(), fresh.toStdString()));
}

TEST_F(PosixFileSystemTest, WritesNothingButFiles) {
    ASSERT_EQ(::mkfifo(at("pipe").c_str(), 0600), 0);
    std::filesystem::create_directory(at("folder"));
    ASSERT_EQ(::mknod(at("socket").c_str(), S_IFSOCK | 0600, 0), 0);
    const size_t before = entries();
    const path places[]{at("pipe"), at("folder"), at("socket"), "/dev/null", at("none/file")};
    for (const path& place : places) {
        SCOPED_TRACE(place);
        EXPECT_FALSE(files.write(place, "bytes"));
        EXPECT_FALSE(files.writeAtomically(place, "bytes"));
    }
    EXPECT_EQ(entries(), before);
}

TEST_F(PosixFileSystemTest, ReportsAFullDisk) {
    std::string longer(1'300'000, 'o'); // read in pieces
    longer.back() = 'p';
    ASSERT_TRUE(files.write(at("old"), "old"));
    ASSERT_TRUE(files.write(at("longer"), QByteArray::fromStdString(longer)));
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{100'000, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &small);
    const bool replaced = files.writeAtomically(at("old"), QByteArray(200'000, 'x'));
    const bool written = files.write(at("new"), QByteArray(200'000, 'x')) ||
                         files.write(at("old"), QByteArray(200'000, 'x')) ||
                         files.write(at("longer"), QByteArray(200'000, 'x'));
    ::setrlimit(RLIMIT_FSIZE, &before);
    static_cast<void>(std::signal(SIGXFSZ, handler));
    EXPECT_FALSE(replaced);
    EXPECT_FALSE(written);
    EXPECT_EQ(content(at("old")), "old");
    EXPECT_EQ(content(at("longer")), longer);
    EXPECT_EQ(content(at("new")), "");
    EXPECT_EQ(entries(), 3U);
}

TEST_F(PosixFileSystemTest, CreatesFoldersForTheirOwnerAlone) {
    ASSERT_TRUE(files.createFolder(at("one/two/three/")));
    EXPECT_EQ(modeOf(at("one")), fs::perms{0700});
    EXPECT_EQ(modeOf(at("one/two/three")), fs::perms{0700});
    EXPECT_TRUE(files.createFolder(at("one/two")));
    ASSERT_TRUE(files.write(at("file"), {}));
    EXPECT_FALSE(files.createFolder(at("file")));
    EXPECT_FALSE(files.createFolder(at("file/below")));
}

} // namespace quillon::test
