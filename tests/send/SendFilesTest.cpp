#include "SendTest.h"

#include <sys/stat.h>

namespace quillon::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Path = std::filesystem::path;

class SendFiles : public SendTest {};

TEST_F(SendFiles, SendsTheFileThoughTheFolderBeforeItFails) {
    const Path folder = world.path("My folder");
    std::filesystem::create_directory(folder);
    world.send(files({folder, file("a.txt")}));

    EXPECT_THAT(world.messages("files"), SizeIs(1));
    EXPECT_THAT(
        world.banner.shown,
        ElementsAre(BannerMessage{"1 sent, 1 failed", "exclamationmark.triangle", false, false}));
    EXPECT_THAT(world.sounds.played, ElementsAre(Sound::basso));
    ASSERT_THAT(world.store->history(), SizeIs(2));
    EXPECT_EQ(world.store->history()[0].title, "a.txt");
    EXPECT_EQ(world.store->history()[1].error, "Folders can't be sent yet: My folder");
    EXPECT_THAT(
        world.newEvents(),
        ElementsAre(R"(sent {"kind":"file","ok":false,"via":"button","count":2,"size":"lt100k"})",
                    R"(send_failed {"kind":"file","reason":"folder"})"));
}

TEST_F(SendFiles, RefusesFilesOver50MegabytesWithoutReadingThem) {
    world.send(files({file("limit.bin", 50'000'000)}));
    EXPECT_EQ(world.messages("files").at(0)["size"], 50'000'000);
    world.clear();
    // Who reads the second one needs a terabyte of memory.
    world.send(files({file("over.bin", 50'000'001), file("huge.mp4", 1'000'000'000'000)}));
    EXPECT_THAT(world.sandbox.requests(), IsEmpty());
    EXPECT_THAT(banners(), ElementsAre("over.bin is over 50 MB (Telegram's limit for bots)"));
    EXPECT_THAT(world.newEvents(),
                ElementsAre(testing::StartsWith("sent {"),
                            R"(send_failed {"kind":"file","reason":"too_big"})",
                            R"(send_failed {"kind":"video","reason":"too_big"})"));
}

TEST_F(SendFiles, ReportsFilesThatCannotBeRead) {
    const Path pipe = world.path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    for (const Path& path : {pipe, world.path("missing"), Path{"/dev/zero"}}) {
        world.clear();
        world.send(files({path}));
        EXPECT_THAT(banners(), ElementsAre("Couldn't read " + path.filename().native()));
        EXPECT_EQ(world.newEvents().back(), R"(send_failed {"kind":"file","reason":"unreadable"})");
    }
    EXPECT_THAT(world.sandbox.requests(), IsEmpty());
}

TEST_F(SendFiles, SendsFilesOfAnyName) {
    const std::pair<std::string, std::string> cases[] = {
        {"say \"hi\".txt", "say 'hi'.txt"},
        {"Ünïcode 100% #1?.txt", "Ünïcode 100% #1?.txt"},
        {"two\r\nlines.txt", "two  lines.txt"},
        {"no\xFFutf8.txt", "no\uFFFDutf8.txt"},
    };
    for (const auto& [name, received] : cases) {
        world.clear();
        world.send(files({file(name)}));
        ASSERT_THAT(world.sandbox.requests(), SizeIs(1)) << name;
        EXPECT_EQ(world.sandbox.requests()[0].parameters.files.at(0).filename, received);
        EXPECT_EQ(world.sandbox.requests()[0].status, 200) << name;
    }
    EXPECT_EQ(world.store->history().front().title, "no\uFFFDutf8.txt");
    EXPECT_THAT(world.messages("files"), SizeIs(4));
}

TEST_F(SendFiles, SumsUpWhatWasSent) {
    const Path a = file("a.txt");
    const Path missing = world.path("missing");
    struct Case {
        std::vector<Path> paths;
        bool showBanner;
        std::vector<std::string> banners;
    };
    const Case cases[] = {
        {{a, file("b"), file("c.zip")}, true, {"Sent to 📎 Files"}},
        {{file("m.webm"), a}, true, {"Sent 2 items"}},
        {{a}, false, {}},
        {{missing, a}, false, {"1 sent, 1 failed"}},
        {{missing, world.path("gone")}, true, {"Couldn't read missing"}},
    };
    for (const Case& each : cases) {
        world.store->changeConfig([&](Config& config) { config.showBanner = each.showBanner; });
        world.clear();
        world.send(files(each.paths));
        EXPECT_EQ(banners(), each.banners);
    }
    world.store->changeConfig([](Config& config) { config.playSound = false; });
    world.clear();
    world.send(files({a}));
    EXPECT_THAT(world.sounds.played, IsEmpty());
}

} // namespace

} // namespace quillon::test
