#include "update/Archive.h"
#include "platform/linux/files/TreeCopy.h"
#include "support/Files.h"
#include "support/Testing.h"
#include "update/Errors.h"
#include "update/Makers.h"
#include "update/PrivateFolder.h"

#include <QTemporaryDir>

namespace quillon::test {

struct ArchiveTest : testing::Test {
    ArchiveTest() {
        fs::create_directories(folder);
        write(root / "victim", "untouched");
    }

    std::optional<UpdateError> unpacked(const std::string& bytes, UnpackLimits limits = {}) {
        return unpack(bytes, folder, limits);
    }
    void empty() const {
        discardTree(folder);
        fs::create_directory(folder);
    }

    QTemporaryDir temporary;
    fs::path root = temporary.path().toStdString();
    fs::path folder = root / "outer/folder";
};

TEST_F(ArchiveTest, KeepsModesTimesAndLinks) {
    ::umask(077);
    empty();
    const std::vector<Entry> entries{
        {.path = "./", .mode = 0777, .type = AE_IFDIR},
        {.path = "./a.app/", .mode = 0555, .type = AE_IFDIR},
        {.path = "./a.app//über/program", .content = "program", .mode = 0755},
        {.path = "a.app/empty", .mode = 0604},
        link("a.app/über/up", "../../a.app/./empty"),
        link("a.app/chain", "über/up"),
        hardLink("a.app/second", "./a.app/über/program"),
    };
    ASSERT_EQ(unpacked(archiveOf(entries)), std::nullopt);
    const fs::path app = folder / "a.app";
    EXPECT_EQ(modeOf(folder), fs::perms{0700});
    EXPECT_EQ(modeOf(app), fs::perms{0555});
    EXPECT_EQ(modeOf(app / "über/program"), fs::perms{0755});
    EXPECT_EQ(modeOf(app / "empty"), fs::perms{0604});
    EXPECT_EQ(fs::read_symlink(app / "chain"), "über/up");
    EXPECT_TRUE(fs::equivalent(app / "second", app / "über/program"));
    EXPECT_EQ(fs::file_size(app / "second"), 7U);
    struct stat status {};
    ::stat(app.c_str(), &status);
    EXPECT_EQ(status.st_mtime, 1'600'000'000);
    EXPECT_EQ(status.st_uid, ::geteuid());
    ::umask(022);
}

TEST_F(ArchiveTest, RefusesWhatDoesNotBelong) {
    const auto file = [](const std::string& path, mode_t mode = 0644, mode_t type = AE_IFREG) {
        return Entry{.path = path, .mode = mode, .type = type};
    };
    const std::string victim = root / "victim";
    const std::tuple<const char*, std::vector<Entry>, int> cases[]{
        {"absolute path", {file(victim)}, updateArchiveAbsolutePath},
        {"parent", {file("../../victim")}, updateArchiveParentPath},
        {"parent further down", {file("a/b/../../../../victim")}, updateArchiveParentPath},
        {"parent folder at the end", {file("a/..", 0755, AE_IFDIR)}, updateArchiveParentPath},
        {"absolute link", {link("a", victim)}, updateArchiveLink},
        {"link up and out", {link("a/b", "../../victim")}, updateArchiveLink},
        {"link out through a name", {link("a", "b/../../victim")}, updateArchiveLink},
        {"two links that lead out together",
         {file("d/e/x"), link("d/e/f", "../.."), link("g", "d/e/f/../victim")},
         updateArchiveLink},
        {"file through a link", {link("a", "."), file("a/b")}, updateArchiveLink},
        {"file in the place of a link", {file("x"), link("a", "x"), file("a")}, updateArchiveLink},
        {"empty link", {link("a", "")}, updateArchiveLink},
        {"hard link to an absolute path", {hardLink("a", victim)}, updateArchiveLink},
        {"hard link up", {hardLink("a", "../../victim")}, updateArchiveLink},
        {"hard link to a link", {link("a", "."), hardLink("b", "a")}, updateArchiveLink},
        {"pipe", {file("a", 0644, AE_IFIFO)}, updateArchiveSpecialFile},
        {"device", {file("a", 0644, AE_IFCHR)}, updateArchiveSpecialFile},
        {"set-uid", {file("a", 04755)}, updateArchivePrivileges},
        {"set-gid folder", {file("a", 02755, AE_IFDIR)}, updateArchivePrivileges},
        {"set-uid through a hard link",
         {file("b"), {.path = "a", .mode = 04755, .type = 0, .link = "b"}},
         updateArchivePrivileges},
        {"the same file twice", {file("a"), file("./a")}, updateArchiveDamaged},
    };
    for (const auto& [what, entries, code] : cases) {
        SCOPED_TRACE(what);
        empty();
        EXPECT_EQ(unpacked(archiveOf(entries)), updateError(code));
        EXPECT_THAT(namesIn(root), UnorderedElementsAre("outer", "victim"));
        EXPECT_THAT(namesIn(root / "outer"), ElementsAre("folder"));
        EXPECT_EQ(fs::file_size(victim), 9U);
        EXPECT_EQ(fs::hard_link_count(victim), 1U);
    }
}

TEST_F(ArchiveTest, StopsAtItsLimits) {
    const auto onDisk = [&] {
        std::uintmax_t sum = 0;
        for (const auto& each : fs::recursive_directory_iterator{folder})
            sum += each.is_regular_file() ? each.file_size() : 0;
        return sum;
    };
    std::vector<Entry> zeros;
    for (const char* name : {"0", "1", "2", "3", "4", "5"})
        zeros.push_back({.path = name, .size = 100'000'000});
    const std::string bomb = archiveOf(zeros);
    EXPECT_LT(bomb.size(), 1'000'000U);
    EXPECT_EQ(unpacked(bomb), updateError(updateArchiveTooLarge));
    EXPECT_LE(onDisk(), 500'000'000U);

    const std::vector<Entry> three{{.path = "a"}, {.path = "b"}, link("c", "b")};
    empty();
    EXPECT_EQ(unpacked(archiveOf(three), {.entries = 2}), updateError(updateArchiveTooLarge));
    empty();
    EXPECT_EQ(unpacked(archiveOf(three), {.entries = 3}), std::nullopt);
}

} // namespace quillon::test
