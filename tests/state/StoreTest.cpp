#include "support/Files.h"
#include "support/TestComputer.h"
#include "support/Testing.h"

using namespace quillon;
using namespace quillon::test;

TEST(Store, WritesNothingBeforeTheFirstChange) {
    TestComputer computer;
    EXPECT_EQ(modeOf(computer.platform.dataFolder), fs::perms{0700});
    EXPECT_TRUE(std::filesystem::is_empty(computer.platform.dataFolder));

    computer.store->changeConfig([](Config& config) { config.chatTitle = "Family"; });
    EXPECT_EQ(modeOf(computer.path("config.json")), fs::perms{0600});
    EXPECT_FALSE(std::filesystem::exists(computer.path("history.json")));
    computer.restart();
    EXPECT_EQ(computer.store->config().chatTitle, "Family");
}

TEST(Store, StartsFromTheDefaultsWhateverLiesInItsFiles) {
    TestComputer computer;
    for (const std::string garbage : {R"({"playSound":"x"})", "\xFF\xFE"}) {
        computer.setContent("config.json", garbage);
        computer.setContent("history.json", garbage);
        computer.restart();
        EXPECT_EQ(computer.store->config(), Config{});
        EXPECT_THAT(computer.store->history(), IsEmpty());
        EXPECT_EQ(computer.content("config.json"), garbage) << "nothing is written back";
    }
}

TEST(Store, SurvivesHugeFilesAndFolders) {
    TestComputer computer;
    computer.setContent("config.json", "{}");
    std::filesystem::resize_file(computer.path("config.json"), 1'000'000'000);
    std::filesystem::create_directory(computer.path("history.json"));
    ASSERT_EQ(mkfifo(computer.path("events.json").c_str(), 0600), 0);
    computer.restart();
    EXPECT_EQ(computer.store->config(), Config{});
    computer.store->changeConfig([](Config& config) { config.playSound = false; });
    EXPECT_LT(std::filesystem::file_size(computer.path("config.json")), 1000U);
    EXPECT_TRUE(computer.store->configSaved());
    std::filesystem::remove(computer.path("config.json"));
    std::filesystem::create_directory(computer.path("config.json"));
    computer.store->changeConfig([](Config& config) { config.chatId = 1; });
    EXPECT_FALSE(computer.store->configSaved());
    EXPECT_EQ(computer.analytics->queue().size(), 1U)
        << "a pipe in the queue's place held up nothing";
}

TEST(Store, IsReadyWithTokenGroupAndAllThreads) {
    TestComputer computer;
    const auto connected = [&](const std::function<void(Config&)>& change) {
        computer.store->changeConfig(change);
        return computer.store->isConnected();
    };
    const auto allThreads = [](Config& config) {
        for (Topic& topic : config.topics)
            topic.threadId = 5;
    };
    EXPECT_FALSE(connected(allThreads)) << "no chat";
    EXPECT_TRUE(connected([](Config& config) { config.chatId = -5; }));
    EXPECT_FALSE(connected([](Config& config) { config.topics[2].threadId.reset(); }));
    EXPECT_TRUE(connected([](Config& config) { config.topics.clear(); }));
    EXPECT_FALSE(computer.store->isReady()) << "no token";
    computer.secrets.values[{"quillon-telegram-token", "quillon"}] = "1:a";
    computer.restart();
    EXPECT_TRUE(computer.store->isReady());
}
