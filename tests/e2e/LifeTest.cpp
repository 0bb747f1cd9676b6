#include "EndToEndTest.h"

namespace quillon::test {

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::SizeIs;
using testing::StartsWith;

constexpr const char* notSetUp = "Bot:      not connected\n"
                                 "Group:    not found yet\n"
                                 "Topic:    📝 Notes & text (not created yet)\n"
                                 "Topic:    📸 Images (not created yet)\n"
                                 "Topic:    📎 Files (not created yet)\n"
                                 "Topic:    🎬 Videos (not created yet)\n"
                                 "Shortcut: ⌃⌥V\n"
                                 "Ready:    no\n";

void expectRun(const Finished& run, int code, const std::string& out, const std::string& err) {
    EXPECT_EQ(run.code, code);
    EXPECT_EQ(run.out, out);
    EXPECT_EQ(run.err, err);
}

} // namespace

TEST_F(EndToEnd, UnderstandsItsCommandLine) {
    const Finished help = quillon.run({"--help"});
    EXPECT_THAT(help.out, HasSubstr("Usage: quillon [COMMAND]\n"));
    expectRun(help, 0, help.out, "");
    EXPECT_THAT(quillon.run({"--version"}).out, MatchesRegex("quillon [0-9]+\\.[0-9]+\\.[0-9]+\n"));
    const std::vector<std::vector<std::string>> mistakes{
        {"sned"}, {""}, {"send", "--json"}, {"status", "history"}, {"connect", token}};
    for (const auto& mistake : mistakes)
        expectRun(quillon.run(mistake), 2, "", help.out);
    EXPECT_THAT(phone.requests(), IsEmpty());
}

TEST_F(EndToEnd, GoesFromConnectingToForgetting) {
    expectRun(quillon.run({"status"}), 0, notSetUp, "");
    expectRun(quillon.run({"find-group"}), 1, "", "Connect your bot first.\n");
    expectRun(quillon.run({"create-topics"}), 1, "", "Find your group first.\n");
    expectRun(quillon.run({"send"}), 1, "", "Finish setting up Quillon first\n");

    expectRun(quillon.run({"connect"}, std::string{token} + "\n"), 0,
              "Connected to quillon_demo_bot\n", "");
    phone.userSays(group, "hi");
    expectRun(quillon.run({"find-group"}), 0, "Found “Family”\n", "");
    expectRun(quillon.run({"create-topics"}), 0,
              "📝 Notes & text\n📸 Images\n📎 Files\n🎬 Videos\n", "");
    const Json status = Json::parse(quillon.run({"status", "--json"}).out);
    EXPECT_EQ(status["ready"], true);
    EXPECT_EQ(status["chatId"], group);
    EXPECT_EQ(messages("📝 Notes & text").at(0)["text"],
              "✅ Quillon is connected. Press ⌃⌥V on your Mac to send what you copied.");

    clipboard.copyText("first <line>\nsecond & last");
    expectRun(quillon.run({"send"}), 0, "sent\t📝 Notes & text\tfirst <line>\n", "");
    EXPECT_EQ(messages("📝 Notes & text").at(1)["pre"],
              Json::array({"first <line>\nsecond & last"}));
    clipboard.clear();
    expectRun(quillon.run({"send"}), 1, "", "The clipboard is empty\n");

    const Finished history = quillon.run({"history"});
    EXPECT_THAT(history.out, MatchesRegex("20..-..-.. ..:..:..\tsent\t📝 Notes & text\tfirst "
                                          "<line>\n"));
    expectRun(quillon.run({"rename-topics"}), 0, "", "");
    expectRun(quillon.run({"forget"}), 0, "", "");
    expectRun(quillon.run({"status"}), 0, notSetUp, "");
    EXPECT_EQ(quillon.run({"history"}).out, history.out);
    expectRun(quillon.run({"send"}), 1, "", "Finish setting up Quillon first\n");
}

TEST_F(EndToEnd, SendsPicturesInAnyFormat) {
    setUp();
    for (const std::string format : {"png", "tiff", "bmp"}) {
        clipboard.copy("image/" + format, converted(format));
        expectRun(quillon.run({"send"}), 0, "sent\t📸 Images\tImage · 40×30\n", "");
        const Json photo = messages("📸 Images").back();
        EXPECT_EQ(photo["mime"], "image/png");
        EXPECT_EQ(photo["width"], 40) << format;
        EXPECT_THAT(photo["filename"].get<std::string>(), MatchesRegex("clipboard-[0-9]+\\.png"));
    }
    EXPECT_THAT(messages("📸 Images"), SizeIs(3));
}

TEST_F(EndToEnd, SendsFilesByTheirUris) {
    setUp();
    const std::string folder = documents.path().toStdString() + "/";
    const std::string umlauts = file("Grüße \"1\".txt", "a");
    file("two\nlines.txt", "bb");
    file("no\xFFutf8.MOV", "ccc");
    clipboard.copyFiles({"# a comment", "file://" + umlauts, "file://" + folder + "two%0Alines.txt",
                         "file://localhost" + folder + "no%FFutf8.MOV", "file://" + folder,
                         "https://example.org/"});
    const Finished run = quillon.run({"send"});
    EXPECT_EQ(run.code, 1);
    EXPECT_THAT(run.err, StartsWith("Folders can't be sent yet: "));
    EXPECT_THAT(run.out, StartsWith("sent\t📎 Files\tGrüße \"1\".txt\n"
                                    "sent\t📎 Files\ttwo\uFFFDlines.txt\n"
                                    "sent\t🎬 Videos\tno\uFFFDutf8.MOV\n"
                                    "failed\t📎 Files\t"));
    EXPECT_EQ(messages("📎 Files").at(0)["filename"], "Grüße '1'.txt");
    EXPECT_EQ(messages("📎 Files").at(1)["size"], 2);
    EXPECT_EQ(messages("🎬 Videos").at(0)["size"], 3);

    const Json history = Json::parse(quillon.run({"history", "--json"}).out);
    ASSERT_THAT(history, SizeIs(4));
    EXPECT_EQ(history[3]["title"], "Grüße \"1\".txt") << "the newest stands first";
    EXPECT_THAT(history[0]["error"].get<std::string>(), StartsWith("Folders"));
    EXPECT_THAT(history[0]["date"].get<std::string>(),
                MatchesRegex("20..-..-..T..:..:..\\.[0-9]+Z"));
}

TEST_F(EndToEnd, SendsTextOfAnySizeWhole) {
    setUp();
    std::string text;
    for (int line = 0; text.size() < 600'000; ++line) // far more than fits one X11 transfer
        text += std::to_string(line) + ": 👨‍👩‍👧‍👦 & <ä>\n";
    clipboard.copyText(text);
    EXPECT_EQ(quillon.run({"send"}).code, 0);
    std::string arrived;
    std::size_t blocks = 0;
    for (const auto& request : phone.requests()) {
        const auto sent = request.parameter("text").get<std::string>();
        arrived += sent.substr(5, sent.size() - 11); // without <pre> and </pre>
        ++blocks;
    }
    EXPECT_GT(blocks, 50U);
    for (const auto& [entity, character] :
         {std::pair{"&lt;", "<"}, std::pair{"&gt;", ">"}, std::pair{"&amp;", "&"}}) {
        arrived = QString::fromStdString(arrived)
                      .replace(QLatin1String{entity}, QLatin1String{character})
                      .toStdString();
    }
    EXPECT_TRUE(arrived == text);
}

TEST_F(EndToEnd, ReturnsWhileTheBannerStillShows) {
    setUp();
    clipboard.copyText("a");
    EXPECT_EQ(quillon.run({"send"}).code, 0);
    EXPECT_THAT(Program::processes(), SizeIs(1)) << "one that shows the banner";
    EXPECT_TRUE(waitUntil([] { return Program::processes().empty(); }, std::chrono::seconds{10}));
}

TEST_F(EndToEnd, SendsTwiceAtATime) {
    setUp();
    const auto picture = file("a.txt", "a");
    clipboard.copyFiles({"file://" + picture});
    sandbox::Fault slow = fault(sandbox::FaultKind::delay);
    slow.delay = std::chrono::seconds{2};
    phone.failNext(slow);
    const auto first = quillon.start({"send"});
    const auto second = quillon.start({"send"});
    const auto one = Program::finish(*first);
    const auto other = Program::finish(*second);
    EXPECT_EQ(one.code + other.code, 1) << "one sends, the other is turned away";
    EXPECT_EQ(one.err + other.err,
              "Another Quillon is at work. Quit it, or wait until it is done.\n");
    EXPECT_THAT(messages("📎 Files"), SizeIs(1));
    EXPECT_THAT(Json::parse(quillon.run({"history", "--json"}).out), SizeIs(1));
}

} // namespace quillon::test
