#include "state/Config.h"
#include "state/Sent.h"
#include "state/Topic.h"

#include <gmock/gmock.h>

using namespace quillon;

constexpr const char* defaultRecord =
    R"({"topics":[{"key":"notes","name":"📝 Notes & text","color":13338331},)"
    R"({"key":"images","name":"📸 Images","color":16766590},)"
    R"({"key":"files","name":"📎 Files","color":9367192},)"
    R"({"key":"videos","name":"🎬 Videos","color":7322096}],)"
    R"("shortcut":"ctrlOptV","playSound":true,"showBanner":true,"bannerPosition":"top"})";

TEST(Config, IsWrittenInItsOrderWithoutWhatIsAbsent) {
    EXPECT_EQ(encodeConfig({}), defaultRecord);
    Config config;
    config.chatId = -1009876543210123;
    config.chatTitle = "Fam\"ily\" ü";
    config.botName = "my_bot";
    config.topics = {{.key = "notes", .name = "N", .color = 1, .threadId = 7}};
    config.shortcut = ShortcutChoice::ctrlOptC;
    config.playSound = false;
    config.bannerPosition = BannerPosition::bottom;
    EXPECT_EQ(encodeConfig(config),
              R"({"chatId":-1009876543210123,"chatTitle":"Fam\"ily\" ü","botName":"my_bot",)"
              R"("topics":[{"key":"notes","name":"N","color":1,"threadId":7}],)"
              R"("shortcut":"ctrlOptC","playSound":false,"showBanner":true,)"
              R"("bannerPosition":"bottom"})");
    EXPECT_EQ(decodeConfig(encodeConfig(config)), config);
}

TEST(Config, ReadsLenientlyWhereItMay) {
    const Config defaults;
    EXPECT_EQ(decodeConfig("{}"), defaults);
    EXPECT_EQ(decodeConfig(R"({"chatId":null,"topics":null,"playSound":null,"unknown":[1]})"),
              defaults);
    for (const char* value : {"\"ctrlOptX\"", "7", "null", "[]", "{\"a\":1}"}) {
        const auto config = decodeConfig(std::string{R"({"shortcut":)"} + value +
                                         R"(,"bannerPosition":)" + value + R"(,"chatId":-5})");
        ASSERT_TRUE(config) << value;
        EXPECT_EQ(config->shortcut, ShortcutChoice::ctrlOptV);
        EXPECT_EQ(config->bannerPosition, BannerPosition::top);
        EXPECT_EQ(config->chatId, -5) << "the other keys keep their values";
    }
    EXPECT_TRUE(decodeConfig(R"({"topics":[]})")->topics.empty());
    EXPECT_EQ(decodeConfig(R"({"topics":[{"key":"k","name":"n","color":1,"threadId":null}]})")
                  ->topics.front()
                  .threadId,
              std::nullopt);
}

TEST(Config, FailsAsAWholeWhereItMust) {
    for (const char* record :
         {"", "[]", "null", R"({"chatId":1.5})", R"({"chatId":"1"})", R"({"chatId":true})",
          R"({"chatId":9223372036854775808})", R"({"chatTitle":7})", R"({"botName":false})",
          R"({"playSound":"yes"})", R"({"showBanner":1})", R"({"topics":{}})", R"({"topics":[7]})",
          R"({"topics":[{"key":"k","name":"n"}]})",
          R"({"topics":[{"key":"k","name":null,"color":1}]})",
          R"({"topics":[{"key":"k","name":"n","color":1,"threadId":"7"}]})"}) {
        EXPECT_EQ(decodeConfig(record), std::nullopt) << record;
    }
}

TEST(Sent, KeepsItsMomentAndItsError) {
    const QUuid id = QUuid::fromString(QStringLiteral("{a1b2c3d4-0000-4000-8000-00000000000f}"));
    const Date date{std::chrono::duration<double>{978'307'200.0 + 700'000'000.25}};
    const Sent sent{
        .id = id, .symbol = "doc", .title = "ü", .topic = "📎", .date = date, .error = "a\n\"b\""};
    EXPECT_EQ(encodeHistory({sent}),
              R"([{"id":"A1B2C3D4-0000-4000-8000-00000000000F","symbol":"doc","title":"ü",)"
              R"("topic":"📎","date":700000000.25,"error":"a\n\"b\""}])");
    EXPECT_EQ(decodeHistory(encodeHistory({sent})), std::vector{sent});
}

TEST(Sent, IsReadAllOrNothing) {
    const std::string good =
        R"({"id":"a1b2c3d4-0000-4000-8000-00000000000f","symbol":"s","title":"t",)"
        R"("topic":"p","date":5,"error":null,"more":1})";
    const auto history = decodeHistory("[" + good + "]");
    ASSERT_EQ(history.size(), 1U);
    EXPECT_EQ(history.front().error, std::nullopt);
    for (const std::string far : {"1e300", "-1e300"}) {
        std::string record = good;
        const Date date =
            decodeHistory("[" + record.replace(record.find("5,"), 1, far) + "]").at(0).date;
        EXPECT_LT(abs(date.time_since_epoch()), std::chrono::years{10'000}) << "fits calendars";
    }
    const std::pair<const char*, const char*> faults[] = {{"a1b2c3d4-0000", "{1b2c3d4-0000"},
                                                          {"a1b2c3d4-", "a1b2c3d4"},
                                                          {R"("date":5)", R"("date":"5")"},
                                                          {R"("date":5,)", ""},
                                                          {R"("topic":"p",)", ""},
                                                          {R"("error":null)", R"("error":7)"},
                                                          {R"("title":"t")", R"("title":null)"}};
    const std::string before = "[" + good + ",";
    for (const auto& [from, to] : faults) {
        std::string bad = good;
        bad.replace(bad.find(from), std::string_view{from}.size(), to);
        EXPECT_TRUE(decodeHistory(before + bad + "]").empty()) << bad;
    }
}

TEST(Topic, OfAKindIsTheFirstOneElseTheListsFirst) {
    const Topic files{.key = "files", .name = "Papers", .color = 1, .threadId = 5};
    const Topic others{.key = "files", .name = "Others", .color = 1, .threadId = 6};
    const Topic strange{.key = "strange", .name = "Strange", .color = 1, .threadId = 7};
    EXPECT_EQ(topicFor({strange, files, others}, TopicKind::files), files);
    EXPECT_EQ(topicFor({strange, files}, TopicKind::images), strange);
    // Without any topic, what is sent goes to the group's general one.
    EXPECT_EQ(topicFor({}, TopicKind::videos).name, "🎬 Videos");
    EXPECT_EQ(topicFor({}, TopicKind::videos).threadId, std::nullopt);
}
