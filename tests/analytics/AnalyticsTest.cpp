#include "support/TestComputer.h"
#include "support/Testing.h"

using namespace quillon;
using namespace quillon::test;

TEST(Analytics, WritesEachEventAtOnce) {
    TestComputer computer;
    computer.analytics->track("probe",
                              {{"text", "ü"}, {"number", std::int64_t{-5}}, {"flag", true}});
    EXPECT_EQ(
        computer.content("events.json"),
        R"([{"name":"probe","at":1700000000000,"props":{"text":"ü","number":-5,"flag":true}}])");
    computer.setContent("events.json.new-a1B2c3", "[");
    computer.setContent("events.json.backup", "mine");
    computer.restart();
    computer.analytics->track("second");
    EXPECT_FALSE(std::filesystem::exists(computer.path("events.json.new-a1B2c3")));
    EXPECT_TRUE(std::filesystem::exists(computer.path("events.json.backup")));
    EXPECT_THAT(computer.events(),
                ElementsAre(R"(probe {"text":"ü","number":-5,"flag":true})", "second {}"));
}

TEST(Analytics, WritesTheEventsOfOneSendAtOnceAndDropsTheOldestBeyondItsLimit) {
    TestComputer computer;
    const SendInfo failure{.reason = SendFailure::folder};
    computer.store->sent(std::vector<SendInfo>(2004, failure), Trigger::button);
    EXPECT_EQ(computer.files.writes, 1);
    computer.analytics->track("last");
    const std::vector<std::string> events = computer.events();
    ASSERT_EQ(events.size(), 2000U);
    EXPECT_EQ(events.front(), R"(send_failed {"kind":"file","reason":"folder"})");
    EXPECT_EQ(events.back(), "last {}");
}

TEST(Analytics, StartsEmptyFromAnUnusableFile) {
    TestComputer computer;
    for (const char* content : {"", "{}", "[7]", R"([{"name":"a","at":1,"props":{"x":null}}])",
                                R"([{"name":"a","at":1.5,"props":{}}])",
                                R"([{"name":"a","at":1,"props":{}},{"at":2}])"}) {
        computer.setContent("events.json", content);
        computer.restart();
        EXPECT_TRUE(computer.analytics->queue().empty()) << content;
    }
}

TEST(Analytics, ReportsChangedSettingsInTheirOrder) {
    TestComputer computer;
    computer.store->changeConfig([](Config& config) {
        config.bannerPosition = BannerPosition::bottom;
        config.playSound = false;
        config.chatTitle = "private";
        config.shortcut = ShortcutChoice::ctrlOptP;
    });
    EXPECT_THAT(computer.events(),
                ElementsAre(R"(settings_changed {"setting":"shortcut","value":"⌃⌥P"})",
                            R"(settings_changed {"setting":"sound","value":false})",
                            R"(settings_changed {"setting":"banner_position","value":"bottom"})"));
}
