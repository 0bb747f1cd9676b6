#include "platform/linux/desktop/LinuxBundle.h"
#include "support/Await.h"
#include "support/Files.h"
#include "support/TestComputer.h"
#include "support/Unprivileged.h"
#include "update/Archive.h"
#include "update/Errors.h"
#include "update/Preparation.h"
#include "update/UpdateSource.h"

#include <sys/file.h>

#include <csignal>

namespace quillon::test {

using Prepared = std::variant<PreparedUpdate, UpdateError>;

/// Version 1.0 on a disk, and its makers, who offer what the test wants.
struct UpdateTest : testing::Test {
    UpdateTest() {
        placeOld();
        computer.platform.bundle = bundleAt(bundle);
        computer.platform.bundle.info["SUPublicEDKey"] = source.maker.publicKey();
    }

    void placeOld() const { place(application("1.0"), applications); }
    void offer(const std::string& bytes) {
        source.publish("1.1", bytes);
        item = source.item();
    }
    Prepared prepare() { return await(prepareUpdate(computer.platform, item, {}, {})); }
    UpdateError refusal() {
        const auto prepared = prepare();
        const auto* error = std::get_if<UpdateError>(&prepared);
        return error ? *error : UpdateError{};
    }
    void tidy() const { removeLeftovers(computer.platform.bundle, computer.platform.folders); }
    /// What lies beside the application and in the cache.
    std::vector<std::string> leftovers() const {
        std::vector<std::string> names = namesIn(computer.home() / "cache/dev.vostrel.quillon");
        for (const std::string& name : namesIn(applications)) {
            if (name != "Quillon.app") names.push_back(name);
        }
        return names;
    }

    TestComputer computer;
    fs::path applications = computer.home() / "Downloads";
    fs::path bundle = applications / "Quillon.app";
    UpdateSource source;
    FeedItem item;
};

TEST_F(UpdateTest, PutsTheNewVersionInThePlaceOfTheOld) {
    offer(archiveOf(application("1.1")));
    const auto before = snapshot(bundle);
    auto prepared = prepare();
    ASSERT_TRUE(std::holds_alternative<PreparedUpdate>(prepared))
        << std::get<UpdateError>(prepared).description;
    EXPECT_EQ(snapshot(bundle), before);

    // A folder that another process still has its hands on is not for this one to remove.
    tidy();
    const int held = ::open(bundle.c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(::flock(held, LOCK_EX), 0);
    EXPECT_EQ(install(std::get<PreparedUpdate>(prepared)), updateError(updateInstalling));
    EXPECT_EQ(versionOf(bundle), "1.0");
    ::close(held);
    EXPECT_EQ(install(std::get<PreparedUpdate>(prepared)), std::nullopt);
    EXPECT_EQ(versionOf(bundle), "1.1");
    EXPECT_EQ(install(std::get<PreparedUpdate>(prepared)), updateError(updateInstalling));
    const fs::path kept = std::get<PreparedUpdate>(prepared).staged;
    prepared = UpdateError{};
    EXPECT_EQ(snapshot(kept), before) << "the old one is kept";
    tidy();
    EXPECT_THAT(leftovers(), IsEmpty());
    EXPECT_EQ(versionOf(bundle), "1.1");
}

TEST_F(UpdateTest, RefusesEveryAttackAndChangesNothing) {
    const std::string good = archiveOf(application("1.1"));
    const auto with = [](const Entry& more) {
        auto entries = application("1.1");
        entries.push_back(more);
        return archiveOf(entries);
    };
    const auto program = [](const std::string& script) {
        auto entries = application("1.1");
        entries[programEntry].content = script;
        return archiveOf(entries);
    };
    struct Case {
        const char* what;
        std::string archive;
        int code;
        std::function<void()> change = [] {};
    };
    const Case cases[]{
        {"another maker's signature", good, updateSignatureWrong,
         [&] { item.signature = Maker{}.sign(good); }},
        {"one byte more, and a length to match", good + '\0', updateSignatureWrong,
         [&] { item.signature = source.maker.sign(good); }},
        {"longer than announced", good, updateLengthWrong, [&] { --item.length; }},
        {"an error page", good, updateDownloadFailed, [&] { source.archiveStatus = 404; }},
        {"plain http from elsewhere", good, updateNotAllowed,
         [&] { item.url = "http://192.0.2.1/archive"; }},
        {"the same version", archiveOf(application("1.0")), updateNotNewer,
         [&] { item.version = item.shortVersion = "1.0.0"; }},
        {"an older version than announced", archiveOf(application("0.9")), updateOtherVersion},
        {"another identifier", archiveOf(application("1.1", "dev.vostrel.quill")),
         updateOtherApplication},
        {"a second application", with({.path = "Other.app/Contents/x"}), updateNoApplication},
        {"a link instead of an application",
         archiveOf({{.path = "x/Contents/Info.plist"}, link("Quillon.app", "x")}),
         updateNoApplication},
        {"a program that tells another version", program("#!/bin/sh\necho quillon 1.0\n"),
         updateDoesNotRun},
        {"a program that fails", program("#!/bin/sh\necho quillon 1.1; exit 1\n"),
         updateDoesNotRun},
        {"a path with ..", with({.path = "Quillon.app/../../x"}), updateArchiveParentPath},
    };
    const auto before = snapshot(bundle);
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        source.archiveStatus = 200;
        offer(each.archive);
        each.change();
        EXPECT_EQ(refusal(), updateError(each.code));
        EXPECT_TRUE(snapshot(bundle) == before);
        EXPECT_THAT(leftovers(), IsEmpty());
    }
    offer(good);
    computer.platform.bundle.info.erase("SUPublicEDKey");
    EXPECT_EQ(refusal(), updateError(updateKeyMissing));
}

TEST_F(UpdateTest, ObjectsToThePlace) {
    EXPECT_EQ(objectionToUpdating(bundle), std::nullopt);
    EXPECT_EQ(objectionToUpdating("/private/AppTranslocation/X/d/Quillon.app").value().code, 1005);
    ::chmod(computer.home().c_str(), 0755);
    ::chmod(applications.c_str(), 0555);
    EXPECT_TRUE(asNobody([this] {
        return std::get<UpdateError>(makeStaging(bundle)).code == 4012;
    })) << "a folder of others";
    ::chmod(applications.c_str(), 0755);
}

TEST_F(UpdateTest, SurvivesAFullDisk) {
    constexpr std::size_t size = 1 << 20;
    offer(archiveOf(application("1.1")));
    const Mount disk = Mount::memory(applications, "size=1m");
    if (!disk) GTEST_SKIP() << "only root mounts";
    placeOld();
    write(applications / "filling", std::string(size - 110'000, 'x'));
    const auto before = snapshot(bundle);
    EXPECT_EQ(refusal(), fileError(ENOSPC));
    EXPECT_EQ(snapshot(bundle), before);
    EXPECT_EQ(leftovers(), std::vector<std::string>{"filling"});

    fs::remove(applications / "filling");
    const fs::path cache = computer.home() / "cache";
    const Mount small = Mount::memory(cache, "size=1m");
    write(cache / "filling", std::string(size, 'x'));
    EXPECT_EQ(refusal(), fileError(ENOSPC));
    EXPECT_THAT(leftovers(), IsEmpty());
}

TEST_F(UpdateTest, DoesNotWaitForAProgramThatHangs) {
    auto entries = application("1.1");
    entries[programEntry].content = "#!/bin/sh\necho quillon 1.1\nsleep 60 &\nsleep 60\n";
    const fs::path folder = computer.home() / "staged";
    place(entries, folder);
    offer("x");
    const auto begin = std::chrono::steady_clock::now();
    const auto staged = checkStaged(folder, computer.platform.bundle, item, 200ms);
    EXPECT_EQ(std::get<UpdateError>(staged), updateError(updateDoesNotRun));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 5s);
}

TEST_F(UpdateTest, RemovesNothingButItsOwnLeftovers) {
    const fs::path outside = computer.home() / "outside";
    write(outside, "outside");
    const fs::path left = applications / ".Quillon-update-abcdef";
    place({{.path = "deep/closed/", .mode = 0, .type = AE_IFDIR}, {.path = "deep/x"}}, left);
    fs::create_symlink(outside, left / "out");
    fs::create_directory_symlink(computer.home(), applications / ".Quillon-update-link00");
    fs::create_directory(applications / ".Quillon-update-longer00");
    write(applications / ".Quillon-update-afile0", "a file");
    fs::create_directories(computer.home() / "cache/dev.vostrel.quillon/update-123456/x");
    tidy();
    EXPECT_THAT(leftovers(),
                UnorderedElementsAre(".Quillon-update-link00", ".Quillon-update-longer00",
                                     ".Quillon-update-afile0"));
    EXPECT_TRUE(fs::exists(outside));
}

TEST_F(UpdateTest, LeavesOneWorkingVersionWhenKilled) {
    auto entries = application("1.1");
    entries.push_back({.path = "Quillon.app/x", .content = std::string(1'000'000, 'x')});
    const std::string archive = archiveOf(entries);
    offer(archive);
    const auto old = snapshot(bundle);
    const auto prepareAndInstall = [&] {
        PreparedUpdate update;
        update.bundle = bundle;
        update.item = item;
        update.folder = std::get<std::shared_ptr<PrivateFolder>>(makeStaging(bundle));
        const fs::path& folder = update.folder->path();
        std::ignore = unpack(archive, folder);
        update.staged = std::get<fs::path>(checkStaged(folder, computer.platform.bundle, item));
        if (flushTree(update.staged)) std::ignore = install(update);
    };
    std::chrono::milliseconds limit = 0ms;
    for (std::string version; version != "1.1" && limit < 10s; limit += 1ms + limit / 8) {
        SCOPED_TRACE(limit.count());
        const pid_t child = ::fork();
        if (child == 0) {
            prepareAndInstall();
            ::_exit(0);
        }
        std::this_thread::sleep_for(limit);
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        version = versionOf(bundle);
        EXPECT_TRUE(version == "1.1" || (version == "1.0" && snapshot(bundle) == old));
        // Started by the child for its version, the new program may hold the lock a moment longer.
        EXPECT_TRUE(waitUntil([&] {
            tidy();
            return namesIn(applications) == std::vector<std::string>{"Quillon.app"};
        }));
    }
    EXPECT_EQ(versionOf(bundle), "1.1") << "it was never given the time";
}

} // namespace quillon::test
