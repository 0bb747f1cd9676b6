#include "support/ConnectedWorld.h"
#include "support/Faults.h"

#include <gmock/gmock.h>

namespace quillon::test {

namespace {

using sandbox::BotRole;
using sandbox::Fault;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* cannotCreateText =
    "Couldn't create topics. Make the bot an admin with “Manage Topics” and try again.";

} // namespace

TEST(Topics, AreMadeInOrderAndWelcomed) {
    BotWorld world;
    const std::int64_t group = world.sandbox.addGroup();
    await(world.store->connectBot(BotWorld::token));
    await(world.store->findGroup());
    world.store->changeConfig([](Config& config) { config.shortcut = ShortcutChoice::ctrlOptP; });
    world.clear();
    await(world.store->createTopics());

    const std::string chat = R"({"chat_id":)" + std::to_string(group);
    const auto notes = std::to_string(world.store->config().topics[0].threadId.value_or(0));
    EXPECT_THAT(
        world.calls(),
        ElementsAre(R"(getUpdates {"allowed_updates":["message"]})",
                    "createForumTopic " + chat +
                        R"(,"name":"📝 Notes & text","icon_color":13338331})",
                    "createForumTopic " + chat + R"(,"name":"📸 Images","icon_color":16766590})",
                    "createForumTopic " + chat + R"(,"name":"📎 Files","icon_color":9367192})",
                    "createForumTopic " + chat + R"(,"name":"🎬 Videos","icon_color":7322096})",
                    "sendMessage " + chat + R"(,"message_thread_id":)" + notes +
                        R"(,"text":"✅ Quillon is connected. Press ⌃⌥P on your Mac to send )"
                        R"(what you copied."})"));
    EXPECT_THAT(world.newEvents(), ElementsAre(R"(setup_step {"step":"topics_created"})"));
    world.restart();
    EXPECT_TRUE(world.store->isReady());
    world.clear();
    await(world.store->createTopics());
    EXPECT_THAT(world.methods(), ElementsAre("getUpdates"));
}

TEST(SetupActions, WorkOneAfterTheOther) {
    BotWorld world;
    world.sandbox.userSays(world.sandbox.addGroup(), "hi");
    await(world.store->connectBot(BotWorld::token));
    auto finding = world.store->findGroup();
    auto creating = world.store->createTopics();
    auto again = world.store->createTopics();
    auto forgetting = world.store->forgetBot();
    EXPECT_TRUE(world.store->tokenSaved()) << "forgotten before its turn";
    await(std::move(finding));
    await(std::move(creating));
    EXPECT_TRUE(world.store->isReady());
    await(std::move(again));
    EXPECT_TRUE(await(std::move(forgetting)));
    EXPECT_EQ(std::ranges::count(world.methods(), "createForumTopic"), 4);
    EXPECT_EQ(world.store->config().topics, Topic::defaults());
    EXPECT_FALSE(world.store->tokenSaved());
}

TEST(Topics, AreFoundAgainWithoutAWelcome) {
    ConnectedWorld world;
    const auto before = world.threads();
    // Twice in a row: what the first run asks must not make the second blind.
    for (int run = 0; run < 2; ++run) {
        world.forgetThreads();
        world.clear();
        await(world.store->createTopics());
        EXPECT_EQ(world.threads(), before);
        EXPECT_THAT(world.methods(), ElementsAre("getUpdates", "editForumTopic", "editForumTopic",
                                                 "editForumTopic", "editForumTopic"));
        EXPECT_THAT(world.newEvents(), ElementsAre(R"(setup_step {"step":"topics_reused"})"));
    }
}

TEST(Topics, AreMadeAnewWhereTheOldOnesAreGone) {
    ConnectedWorld world;
    const auto before = world.threads();
    world.sandbox.deleteTopic(world.group, *before[0]);
    // A later topic of the same name is the one to use, and a name given later counts too.
    const auto twin = world.sandbox.userCreatesTopic(world.group, "📸 Images");
    const auto renamed = world.sandbox.userCreatesTopic(world.group, "Old files");
    world.sandbox.userRenamesTopic(world.group, renamed, "📎 Files");
    world.forgetThreads();
    await(world.store->createTopics());

    const auto after = world.threads();
    EXPECT_GT(*after[0], renamed) << "created anew";
    EXPECT_EQ(after[1], twin);
    EXPECT_EQ(after[2], renamed);
    EXPECT_EQ(after[3], before[3]);
    EXPECT_EQ(world.newEvents().back(), R"(setup_step {"step":"topics_created"})");
    EXPECT_THAT(world.messages("notes"), IsEmpty()) << "but the welcome";
    EXPECT_EQ(world.methods().back(), "sendMessage");
}

TEST(Topics, AreMadeThoughTheUpdatesCannotBeHad) {
    ConnectedWorld world;
    world.forgetThreads();
    for (const Fault& fault : {answer("getUpdates", 502, "<html>"), answer("getUpdates", Json(7))})
        world.sandbox.failNext(fault);
    await(world.store->createTopics());
    EXPECT_TRUE(world.store->isReady());
}

TEST(Topics, NeedTheRightToManageThem) {
    ConnectedWorld world;
    const auto before = world.threads();
    world.forgetThreads();
    world.store->changeConfig([](Config& config) { config.topics[2].name = "Papers"; });
    world.sandbox.addBotToGroup(world.group, BotRole::admin);
    world.clear();
    EXPECT_EQ(world.failure(world.store->createTopics()), cannotCreateText);
    EXPECT_THAT(world.threads(), ElementsAre(before[0], before[1], std::nullopt, std::nullopt));
    EXPECT_THAT(world.newEvents(), IsEmpty());
    EXPECT_EQ(world.methods().back(), "createForumTopic") << "the fourth is not tried";
}

TEST(Topics, StayWhenTheWelcomeFails) {
    ConnectedWorld world;
    world.sandbox.userSays(world.sandbox.addGroup(), "hi");
    await(world.store->findGroup());
    world.clear();
    world.sandbox.failNext(refusal("sendMessage", 403, "muted"));
    EXPECT_EQ(world.failure(world.store->createTopics()), "muted");
    EXPECT_TRUE(world.store->isReady());
    EXPECT_THAT(world.newEvents(), ElementsAre(R"(setup_step {"step":"topics_created"})"));
    world.clear();
    EXPECT_EQ(world.failure(world.store->createTopics()), "");
    EXPECT_THAT(world.methods(), ElementsAre("getUpdates"));
}

TEST(Topics, AreRenamedUntilOneFails) {
    ConnectedWorld world;
    world.store->changeConfig([](Config& config) {
        config.topics[1].name = "Pictures";
        config.topics[2].threadId.reset();
    });
    const Config before = world.store->config();
    world.clear();
    EXPECT_EQ(world.failure(world.store->renameTopics()), "");
    const auto requests = world.sandbox.requests();
    ASSERT_THAT(requests, SizeIs(3)) << "none for the topic without a thread";
    EXPECT_THAT(requests[0].error, testing::HasSubstr("NOT_MODIFIED"));
    EXPECT_EQ(world.calls()[1], R"(editForumTopic {"chat_id":)" + std::to_string(world.group) +
                                    R"(,"message_thread_id":)" +
                                    std::to_string(*before.topics[1].threadId) +
                                    R"(,"name":"Pictures"})");
    EXPECT_EQ(requests[1].error, "");
    EXPECT_EQ(world.store->config(), before);

    world.sandbox.deleteTopic(world.group, *before.topics[0].threadId);
    world.clear();
    EXPECT_THAT(world.failure(world.store->renameTopics()), testing::HasSubstr("TOPIC_ID_INVALID"));
    EXPECT_THAT(world.methods(), ElementsAre("editForumTopic"));
}

} // namespace quillon::test
