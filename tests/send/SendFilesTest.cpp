#include "SendTest.h"
#include "support/Unprivileged.h"

#include <sys/stat.h>

namespace quillon::test {

namespace {

using namespace std::chrono_literals;
using sandbox::FaultKind;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Path = std::filesystem::path;

class SendFiles : public SendTest {};

TEST_F(SendFiles, SendsTheFileThoughTheFolderBeforeItFails) {
    const Path folder = computer.path("My folder");
    std::filesystem::create_directory(folder);
    computer.send(files({folder, file("a.txt")}));

    EXPECT_THAT(computer.messages("files"), SizeIs(1));
    EXPECT_THAT(
        computer.banner.shown,
        ElementsAre(BannerMessage{"1 sent, 1 failed", "exclamationmark.triangle", false, false}));
    EXPECT_THAT(computer.sounds.played, ElementsAre(Sound::basso));
    ASSERT_THAT(computer.store->history(), SizeIs(2));
    EXPECT_EQ(computer.store->history()[0].title, "a.txt");
    EXPECT_EQ(computer.store->history()[1].error, "Folders can't be sent yet: My folder");
    EXPECT_THAT(
        computer.newEvents(),
        ElementsAre(R"(sent {"kind":"file","ok":false,"via":"button","count":2,"size":"lt100k"})",
                    R"(send_failed {"kind":"file","reason":"folder"})"));
}

TEST_F(SendFiles, RefusesWhatIsOver50MegabytesWithoutReadingIt) {
    computer.send(files({file("limit.bin", 50'000'000)}));
    EXPECT_EQ(computer.messages("files").at(0)["size"], 50'000'000);
    computer.clear();
    // Who reads the second one needs a terabyte of memory.
    computer.send(files({file("over.bin", 50'000'001), file("huge.mp4", 1'000'000'000'000)}));
    EXPECT_THAT(computer.sandbox.requests(), IsEmpty());
    EXPECT_THAT(banners(), ElementsAre("over.bin is over 50 MB (Telegram's limit for bots)"));
    EXPECT_THAT(computer.newEvents(),
                ElementsAre(testing::StartsWith("sent {"),
                            R"(send_failed {"kind":"file","reason":"too_big"})",
                            R"(send_failed {"kind":"video","reason":"too_big"})"));
    computer.send({{"image/png", pngOf(50'000'001)}});
    EXPECT_THAT(computer.sandbox.requests(), IsEmpty());
    EXPECT_EQ(banners().back(), "Image · 4×3 is over 50 MB (Telegram's limit for bots)");
    EXPECT_EQ(computer.newEvents().back(), R"(send_failed {"kind":"image","reason":"too_big"})");
}

TEST_F(SendFiles, TellsOfEachItemWhenTheProgramEndsMeanwhile) {
    const auto told = [this] {
        std::vector<std::string> entries;
        for (const Sent& entry : computer.store->history())
            entries.push_back(entry.title + ": " + entry.error.value_or("sent"));
        return entries;
    };
    const auto clipboard = files({file("a"), file("b"), file("c")});
    // The second file's reply comes while the program waits for it, or too late.
    for (const auto kind : {FaultKind::delay, FaultKind::hang}) {
        computer.setContent("history.json", "");
        computer.restart();
        computer.clear();
        computer.sandbox.failNext(answer("", 200, R"({"ok":true})"));
        computer.sandbox.failNext(fault(kind));
        computer.pasteboard.copy(clipboard);
        auto sending = computer.store->sendClipboard(Trigger::button);
        ASSERT_TRUE(waitUntil([&] { return computer.sandbox.requests().size() == 2; }));
        EXPECT_THAT(told(), ElementsAre("a: sent")) << "each is recorded as it comes";
        computer.store->endSending(kind == FaultKind::hang ? 50ms : 10s);
        const std::string second =
            kind == FaultKind::hang ? "b: Quillon ended before Telegram confirmed it." : "b: sent";
        const auto all = ElementsAre("c: Not sent: the send was stopped.", second, "a: sent");
        EXPECT_THAT(told(), all);
        EXPECT_THAT(computer.newEvents().front(), testing::HasSubstr(R"("count":3)"));
        if (kind == FaultKind::hang) computer.sandbox.stop();
        await(std::move(sending));
        await(computer.store->sendClipboard(Trigger::button));
        EXPECT_THAT(computer.sandbox.requests(), SizeIs(2)) << "it has ended";
        EXPECT_THAT(banners(), IsEmpty());
        computer.restart();
        EXPECT_THAT(told(), all) << "the history is on disk";
    }
}

TEST_F(SendFiles, ReportsFilesThatCannotBeRead) {
    const Path pipe = computer.path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    for (const Path& path : {pipe, computer.path("missing"), Path{"/dev/zero"}}) {
        computer.clear();
        computer.send(files({path}));
        EXPECT_THAT(banners(), ElementsAre("Couldn't read " + path.filename().native()));
        EXPECT_EQ(computer.newEvents().back(),
                  R"(send_failed {"kind":"file","reason":"unreadable"})");
    }
    EXPECT_THAT(computer.sandbox.requests(), IsEmpty());
}

TEST_F(SendFiles, GivesUpFilesThatHangAndStillSendsText) {
    std::filesystem::create_directories(documents);
    const Mount mount = Mount::hanging(documents);
    if (!mount) GTEST_SKIP() << "this user may mount nothing";
    computer.pasteboard.copy(files({documents / "a", documents / "b"}));
    const auto start = computer.clock.now();
    auto sending = computer.store->sendClipboard(Trigger::button);
    ASSERT_TRUE(waitUntil([&] {
        computer.clock.advance(1s);
        return computer.store->history().size() == 2;
    }));
    await(std::move(sending));
    EXPECT_GE(computer.clock.now() - start, 60s);
    EXPECT_THAT(banners().back(), "Couldn't read a");
    computer.send(text("c"));
    EXPECT_THAT(computer.messages("notes"), SizeIs(1)) << "though both are still being read";
}

TEST_F(SendFiles, WaitsForAFileThatComesSlowlyUnlessItIsStopped) {
    const FileLoading slow = *(computer.files.loading = FileLoading{});
    computer.pasteboard.copy(files({file("a")}));
    auto sending = computer.store->sendClipboard(Trigger::button);
    ASSERT_TRUE(waitUntil([&] { return computer.store->busy(); }));
    for (qint64 read = 1; read <= 3; ++read) {
        computer.clock.advance(29s);
        slow.setProgress(read);
    }
    slow.finish({.outcome = FileReading::Outcome::read, .size = 3, .bytes = "abc"});
    await(std::move(sending));
    EXPECT_THAT(banners().back(), "Sent to 📎 Files");
    computer.files.loading = FileLoading{};
    sending = computer.store->sendClipboard(Trigger::button);
    ASSERT_TRUE(waitUntil([&] { return computer.store->busy(); }));
    computer.store->stopSending();
    await(std::move(sending));
    EXPECT_EQ(computer.store->history().front().error, "Not sent: the send was stopped.");
}

TEST_F(SendFiles, SendsFilesOfAnyName) {
    computer.send(files({file("no\xFFutf8,\r\n\"100%\" Ünïcode #1?.txt")}));
    ASSERT_THAT(computer.messages("files"), SizeIs(1));
    EXPECT_EQ(computer.sandbox.requests()[0].parameters.files.at(0).filename,
              "no\uFFFDutf8,  '100%' Ünïcode #1?.txt");
    EXPECT_THAT(computer.store->history().front().title, testing::StartsWith("no\uFFFDutf8,"));
}

TEST_F(SendFiles, SumsUpWhatWasSent) {
    const Path a = file("a.txt");
    const Path missing = computer.path("missing");
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
        {{missing, computer.path("gone")}, true, {"Couldn't read missing"}},
    };
    for (const Case& each : cases) {
        computer.store->changeConfig([&](Config& config) { config.showBanner = each.showBanner; });
        computer.clear();
        computer.send(files(each.paths));
        EXPECT_EQ(banners(), each.banners);
    }
    computer.store->changeConfig([](Config& config) { config.playSound = false; });
    computer.clear();
    computer.send(files({a}));
    EXPECT_THAT(computer.sounds.played, IsEmpty());
}

} // namespace

} // namespace quillon::test
