#include "support/World.h"

#include <gmock/gmock.h>

#include <sys/stat.h>

using namespace quillon;
using namespace quillon::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

mode_t permissions(const std::filesystem::path& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
}

} // namespace

TEST(Store, WritesNothingBeforeTheFirstChange) {
    World world;
    EXPECT_EQ(permissions(world.platform.dataFolder), 0700);
    EXPECT_TRUE(std::filesystem::is_empty(world.platform.dataFolder));

    world.store->changeConfig([](Config& config) { config.chatTitle = "Family"; });
    EXPECT_EQ(permissions(world.path("config.json")), 0600);
    EXPECT_FALSE(std::filesystem::exists(world.path("history.json")));
    world.restart();
    EXPECT_EQ(world.store->config().chatTitle, "Family");
}

TEST(Store, AnnouncesBeforeItChanges) {
    World world;
    std::vector<bool> seen;
    QObject::connect(world.store.get(), &Store::objectWillChange, world.store.get(),
                     [&] { seen.push_back(world.store->config().playSound); });
    world.store->changeConfig([](Config& config) { config.playSound = false; });
    EXPECT_THAT(seen, ElementsAre(true));
}

TEST(Store, StartsFromTheDefaultsWhateverLiesInItsFiles) {
    World world;
    const std::string nested(5'000'000, '[');
    for (const std::string& garbage : {std::string{R"({"playSound":"x"})"}, std::string{"\xFF\xFE"},
                                       nested, std::string{R"({"chatId":1)"}}) {
        world.setContent("config.json", garbage);
        world.setContent("history.json", garbage);
        world.restart();
        EXPECT_EQ(world.store->config(), Config{});
        EXPECT_THAT(world.store->history(), IsEmpty());
        EXPECT_EQ(world.content("config.json"), garbage) << "nothing is written back";
    }
}

TEST(Store, SurvivesHugeFilesAndFolders) {
    World world;
    world.setContent("config.json", "{}");
    std::filesystem::resize_file(world.path("config.json"), 1'000'000'000);
    std::filesystem::create_directory(world.path("history.json"));
    ASSERT_EQ(mkfifo(world.path("events.json").c_str(), 0600), 0);
    world.restart();
    EXPECT_EQ(world.store->config(), Config{});
    world.store->changeConfig([](Config& config) { config.playSound = false; });
    EXPECT_LT(std::filesystem::file_size(world.path("config.json")), 1000U);
    EXPECT_EQ(world.analytics->queue().size(), 1U) << "a pipe in the queue's place held up nothing";
}

TEST(Store, KeepsChangesInMemoryAfterPersistingEnded) {
    World world;
    world.store->stopPersisting();
    world.store->changeConfig([](Config& config) { config.playSound = false; });
    EXPECT_FALSE(world.store->config().playSound);
    EXPECT_TRUE(std::filesystem::is_empty(world.platform.dataFolder));
}

TEST(Store, IsReadyWithTokenGroupAndAllThreads) {
    World world;
    const auto connected = [&](const std::function<void(Config&)>& change) {
        world.store->changeConfig(change);
        return world.store->isConnected();
    };
    const auto allThreads = [](Config& config) {
        for (Topic& topic : config.topics) {
            topic.threadId = 5;
        }
    };
    EXPECT_FALSE(connected(allThreads)) << "no chat";
    EXPECT_TRUE(connected([](Config& config) { config.chatId = -5; }));
    EXPECT_FALSE(connected([](Config& config) { config.topics[2].threadId.reset(); }));
    EXPECT_TRUE(connected([](Config& config) { config.topics.clear(); }));
    EXPECT_FALSE(world.store->isReady()) << "no token";
    world.secrets.values[{"quillon-telegram-token", "quillon"}] = "1:a";
    world.restart();
    EXPECT_TRUE(world.store->isReady());
}
