#include "SendTest.h"

#include "base/Translate.h"

namespace quillon::test {

namespace {

using sandbox::FaultKind;

constexpr const char* unreachableText = "Couldn't reach Telegram. Check your internet connection.";

class SendPipeline : public SendTest {};

/// What becomes of one item that is sent.
struct Kind {
    FakePasteboard::Content content;
    std::string topic;
    std::string method;
    std::string rest; ///< of the request, after the chat and the topic
    std::string symbol;
    std::string title;
    std::string event; ///< kind and size of the usage event
};

/// Parameters as JSON with their types, and the file.
std::string described(const sandbox::RequestRecord& request) {
    std::string text = request.method;
    for (const auto& parameter : request.parameters.values)
        text += " " + parameter.name + "=" + parameter.value.dump();
    for (const auto& upload : request.parameters.files) {
        text += " | " + upload.field + " " + upload.filename + " " + upload.mime + " " +
                std::to_string(upload.size);
    }
    return text;
}

TEST_F(SendPipeline, SendsEachKindOfContentToItsTopic) {
    const auto document = [this](const std::string& name, std::uintmax_t size,
                                 const std::string& topic, const std::string& symbol,
                                 const std::string& event) {
        return Kind{files({file(name, size)}),
                    topic,
                    "sendDocument",
                    R"( disable_content_type_detection="true" | document )" + name +
                        " application/octet-stream " + std::to_string(size),
                    symbol,
                    name,
                    event};
    };
    const auto image = [](qsizetype size, const std::string& method, const std::string& field,
                          const std::string& event) {
        return Kind{{{"image/png", pngOf(size)}},
                    "images",
                    method,
                    " | " + field + " clipboard-1700000000.png image/png " + std::to_string(size),
                    "photo",
                    "Image · 4×3",
                    event};
    };
    const std::string letters = repeated("é", 70);
    const Kind kinds[] = {
        {text("\n  a <b> & \"c\"" + letters + "\r\nmore"), "notes", "sendMessage",
         R"( parse_mode="HTML" text="<pre>\n  a &lt;b&gt; &amp; \"c\")" + letters +
             R"(\r\nmore</pre>")",
         "text.alignleft", "  a <b> & \"c\"" + repeated("é", 47),
         R"("kind":"text","size":"lt100k")"},
        image(9'999'999, "sendPhoto", "photo", R"("kind":"image","size":"lt10m")"),
        image(10'000'000, "sendDocument", "document", R"("kind":"image","size":"lt50m")"),
        document("Movie.MOV", 100'000, "videos", "film", R"("kind":"video","size":"lt1m")"),
        document("photo.1.hEiC", 99'999, "images", "photo", R"("kind":"image","size":"lt100k")"),
        document("notes.pdf", 1'000'000, "files", "doc", R"("kind":"file","size":"lt10m")"),
        document("mp4", 1, "files", "doc", R"("kind":"file","size":"lt100k")"),
    };
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(kind.title);
        computer.clear();
        computer.send(kind.content);

        // In a form every value is text.
        const std::string quote = kind.method == "sendMessage" ? "" : "\"";
        const Topic topic = computer.topic(kind.topic);
        const auto requests = computer.sandbox.requests();
        ASSERT_THAT(requests, SizeIs(1));
        EXPECT_EQ(described(requests[0]),
                  filled("%1 chat_id=%2%3%2 message_thread_id=%2%4%2%5",
                         {kind.method, quote, std::to_string(computer.group),
                          std::to_string(*topic.threadId), kind.rest}));
        const Sent& entry = computer.store->history().front();
        EXPECT_EQ(entry,
                  (Sent{entry.id, kind.symbol, kind.title, topic.name, computer.clock.now(), {}}));
        EXPECT_THAT(computer.banner.shown,
                    ElementsAre(BannerMessage{"Sent to " + topic.name, "checkmark.circle.fill",
                                              true, false}));
        EXPECT_THAT(computer.sounds.played, ElementsAre(Sound::pop));
        const std::size_t comma = kind.event.find(',');
        EXPECT_THAT(computer.newEvents(), ElementsAre("sent {" + kind.event.substr(0, comma) +
                                                      R"(,"ok":true,"via":"button","count":1)" +
                                                      kind.event.substr(comma) + "}"));
    }
    const std::vector<Sent> history = computer.store->history();
    computer.restart();
    EXPECT_EQ(computer.store->history(), history) << "the history is on disk";
}

TEST_F(SendPipeline, GivesAnImageTheTextBesideItAsCaption) {
    const std::string families = repeated("👨‍👩‍👧‍👦", 200);
    const std::pair<std::string, Json> cases[] = {
        {" \u00a0\r\n\t", nullptr},
        {"\n  <b>a</b> & c \u2003\n", "<b>a</b> & c"},
        {" " + repeated("ü", 2000), repeated("ü", 1024)},
        {families, repeated("👨‍👩‍👧‍👦",
                            146)}, // 1,022 code points; one more would be cut in two
    };
    for (const qsizetype size : {1000, 10'000'000}) {
        for (const auto& [beside, caption] : cases) {
            computer.clear();
            computer.send({{"image/png", pngOf(size)}, {"UTF8_STRING", beside.c_str()}});
            EXPECT_EQ(computer.sandbox.requests().at(0).parameter("caption"), caption) << beside;
            EXPECT_EQ(computer.messages("images").back().value("caption", Json{}), caption);
        }
    }
}

TEST_F(SendPipeline, CutsTextBetweenCharactersAndLosesNone) {
    const std::string family = "👨‍👩‍👧‍👦"; // one character of seven code points
    // Blanks at the ends do not show on the phone.
    const std::pair<std::string, std::vector<std::string>> cases[]{
        {repeated("<&>é", 975), {repeated("<&>é", 975)}},
        {"<pre>&amp;</pre>&#65;", {"<pre>&amp;</pre>&#65;"}},
        {std::string(3900, 'a') + "\n", {std::string(3900, 'a')}},
        {std::string(3899, 'a') + "\r\nb", {std::string(3899, 'a'), "b"}},
        {repeated(family, 1200),
         {repeated(family, 585), repeated(family, 585), repeated(family, 30)}},
    };
    for (const auto& [copied, expected] : cases) {
        const auto before = static_cast<std::ptrdiff_t>(computer.messages("notes").size());
        computer.send(text(copied));
        EXPECT_EQ(computer.store->history().front().error, std::nullopt);
        std::vector<std::string> shown;
        for (const Json& message : computer.messages("notes"))
            shown.push_back(message["pre"].at(0).get<std::string>());
        shown.erase(shown.begin(), shown.begin() + before);
        EXPECT_EQ(shown, expected);
    }
}

TEST_F(SendPipeline, SendsWhatItIsGivenToTheTopicThatIsWished) {
    computer.pasteboard.copy(text("copied"));
    const std::string odd = "a\nb\xff.MOV";
    const std::vector<SendItem> items{file("plan.pdf", 7), ClipImage{pngOf(1000), {}},
                                      ClipText{"typed"},
                                      NamedBytes{"folder/" + odd, QByteArray(9, 'x')},
                                      NamedBytes{"big.mp4", QByteArray(50'000'001, 'x')}};
    const auto send = [&](std::optional<TopicKind> topic) {
        SendWishes wishes{.via = Trigger::command, .topic = topic};
        await(computer.store->send(items, std::move(wishes)));
    };
    send(TopicKind::images);
    const std::string topic = computer.topic("images").name;
    std::vector<std::string> rows;
    for (const Sent& entry : computer.store->history()) {
        EXPECT_EQ(entry.topic, topic);
        rows.push_back(entry.symbol + " " + entry.title + " " + entry.error.value_or("sent"));
    }
    EXPECT_THAT(rows, ElementsAre("film big.mp4 big.mp4 is over 50 MB (Telegram's limit for bots)",
                                  "film a\nb\uFFFD.MOV sent", "text.alignleft typed sent",
                                  "photo Image · 4×3 sent", "doc plan.pdf sent"));
    EXPECT_THAT(computer.messages("images"), SizeIs(4));
    EXPECT_EQ(computer.sandbox.requests().back().parameters.files.front().filename,
              "a b\uFFFD.MOV");
    EXPECT_THAT(banners(), ElementsAre("4 sent, 1 failed"));

    send(std::nullopt);
    EXPECT_THAT(computer.messages("images"), SizeIs(5));
    EXPECT_THAT(computer.messages("videos"), SizeIs(1));
    computer.clear();
    await(computer.store->send({}, {.via = Trigger::command}));
    EXPECT_THAT(banners(), IsEmpty()) << "nothing is nothing, and not the clipboard";
}

TEST_F(SendPipeline, StopsATextAtTheFirstMessageThatFails) {
    computer.sandbox.failNext(fault(FaultKind::delay, 0ms));
    computer.sandbox.failNext(fault(FaultKind::jsonList));
    computer.send(text(std::string(12'000, 'a')));
    EXPECT_THAT(computer.sandbox.requests(), SizeIs(2));
    EXPECT_EQ(computer.store->history().front().error,
              "Telegram sent an empty reply (error 200). Try again in a moment.");
}

TEST_F(SendPipeline, SaysThatItIsSendingAfterAWhile) {
    for (const bool showBanner : {true, false}) {
        computer.store->changeConfig([&](Config& config) { config.showBanner = showBanner; });
        computer.clear();
        computer.sandbox.failNext(flood(1));
        computer.pasteboard.copy({{"image/png", pngOf(1000)}});
        auto sending = computer.store->sendClipboard(Trigger::button);
        // The flood-control wait, beside the one for the banner, keeps the send open.
        ASSERT_TRUE(waitUntil([&] { return computer.clock.pending() == 2; }));
        EXPECT_TRUE(computer.store->busy());
        computer.clock.advance(699ms);
        EXPECT_THAT(banners(), IsEmpty());
        computer.clock.advance(1ms);
        if (showBanner) {
            EXPECT_THAT(computer.banner.shown,
                        ElementsAre(BannerMessage{"Sending…", "arrow.up.circle", true, true}));
        }
        computer.clock.advance(1299ms);
        EXPECT_THAT(computer.sandbox.requests(), SizeIs(1))
            << "a second is added to what was asked";
        computer.clock.advance(1ms);
        await(std::move(sending));
        EXPECT_THAT(banners(), SizeIs(showBanner ? 2 : 0));
        const auto requests = computer.sandbox.requests();
        ASSERT_THAT(requests, SizeIs(2));
        EXPECT_NE(requests[0].contentType, requests[1].contentType) << "a boundary for each body";
        EXPECT_FALSE(computer.store->busy());
        EXPECT_EQ(computer.clock.pending(), 0);
    }
}

TEST_F(SendPipeline, IgnoresATriggerWhileASendRuns) {
    computer.pasteboard.copy(text("held"));
    computer.pasteboard.hesitates = true;
    auto reading = computer.store->sendClipboard(Trigger::shortcut);
    EXPECT_FALSE(computer.store->busy()) << "still reads the clipboard";
    await(computer.store->sendClipboard(Trigger::button));
    computer.pasteboard.hesitates = false;
    computer.pasteboard.giveUp();
    await(std::move(reading));
    EXPECT_THAT(banners(), ElementsAre("The clipboard is empty"));

    computer.clear();
    computer.pasteboard.copy(text("one"));
    computer.sandbox.failNext(fault(FaultKind::hang));
    auto hanging = computer.store->sendClipboard(Trigger::shortcut);
    ASSERT_TRUE(waitUntil([&] { return !computer.sandbox.requests().empty(); }));
    await(computer.store->sendClipboard(Trigger::button));
    EXPECT_THAT(banners(), IsEmpty());
    computer.sandbox.stop();
    await(std::move(hanging));
    EXPECT_THAT(computer.sandbox.requests(), SizeIs(1));
    EXPECT_THAT(computer.store->history(), SizeIs(1));
}

TEST_F(SendPipeline, TellsApartWhatWentWrong) {
    const std::tuple<sandbox::Fault, std::string, std::string> cases[]{
        {fault(FaultKind::cutReply), unreachableText, "no_internet"},
        {refusal("", 400, "Bad Request: <b>no</b>"), "Bad Request: <b>no</b>", "telegram_error"},
        {refusal("", 400, repeated("é", 2'000'000)), repeated("é", 500), "telegram_error"},
    };
    for (const auto& [met, message, reason] : cases) {
        computer.clear();
        computer.sandbox.failNext(met);
        computer.send({{"image/png", pngOf(2'000'000)}});
        EXPECT_THAT(banners(), ElementsAre(message));
        EXPECT_EQ(computer.store->history().front().error, message);
        EXPECT_EQ(computer.newEvents().back(),
                  R"(send_failed {"kind":"image","reason":")" + reason + "\"}");
    }
    computer.clear();
    computer.http.memoryIsShort = true;
    computer.send(text("a"));
    computer.pasteboard.beforeData = [](const std::string& /*format*/) { throw std::bad_alloc{}; };
    computer.send(text("a"));
    const std::string memoryText = "There is not enough memory to send this.";
    EXPECT_THAT(banners(), ElementsAre(memoryText, memoryText));
}

} // namespace

} // namespace quillon::test
