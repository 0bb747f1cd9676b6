#include "support/ConnectedComputer.h"
#include "support/Faults.h"

namespace quillon::test {

constexpr const char* cannotCreateText =
    "Couldn't create topics. Make the bot an admin with “Manage Topics” and try again.";

TEST(Topics, AreMadeInOrderAndWelcomed) {
    BotComputer computer;
    const std::int64_t group = computer.sandbox.addGroup();
    await(computer.store->connectBot(BotComputer::token));
    await(computer.store->findGroup());
    computer.store->changeConfig(
        [](Config& config) { config.shortcut = ShortcutChoice::ctrlOptP; });
    computer.clear();
    await(computer.store->createTopics());

    const std::string chat = R"({"chat_id":)" + std::to_string(group);
    const auto notes = std::to_string(computer.store->config().topics[0].threadId.value_or(0));
    EXPECT_THAT(
        computer.calls(),
        ElementsAre(R"(getUpdates {"allowed_updates":["message"]})",
                    "createForumTopic " + chat +
                        R"(,"name":"📝 Notes & text","icon_color":13338331})",
                    "createForumTopic " + chat + R"(,"name":"📸 Images","icon_color":16766590})",
                    "createForumTopic " + chat + R"(,"name":"📎 Files","icon_color":9367192})",
                    "createForumTopic " + chat + R"(,"name":"🎬 Videos","icon_color":7322096})",
                    "sendMessage " + chat + R"(,"message_thread_id":)" + notes +
                        R"(,"text":"✅ Quillon is connected. Press ⌃⌥P on your Mac to send )"
                        R"(what you copied."})"));
    EXPECT_THAT(computer.newEvents(), ElementsAre(R"(setup_step {"step":"topics_created"})"));
    computer.restart();
    EXPECT_TRUE(computer.store->isReady());
    computer.clear();
    await(computer.store->createTopics());
    EXPECT_THAT(computer.methods(), ElementsAre("getUpdates"));
}

TEST(SetupActions, WorkOneAfterTheOther) {
    BotComputer computer;
    computer.sandbox.userSays(computer.sandbox.addGroup(), "hi");
    await(computer.store->connectBot(BotComputer::token));
    auto finding = computer.store->findGroup();
    auto creating = computer.store->createTopics();
    auto again = computer.store->createTopics();
    await(std::move(finding));
    await(std::move(creating));
    await(std::move(again));
    EXPECT_EQ(std::ranges::count(computer.methods(), "createForumTopic"), 4);
    EXPECT_TRUE(computer.store->isReady());
}

TEST(SetupActions, EndWhenTheirBotIsForgotten) {
    const auto connect = [](Store& store) -> QCoro::Task<> {
        auto connecting = store.connectBot("8:second");
        co_await connecting;
    };
    const auto find = std::mem_fn(&Store::findGroup);
    const auto create = std::mem_fn(&Store::createTopics);
    const auto rename = std::mem_fn(&Store::renameTopics);
    const std::string noBot = "Connect your bot first.";
    const std::string noGroup = "Find your group first.";
    // The bot is forgotten while the request is held up.
    const std::tuple<std::string, std::function<QCoro::Task<>(Store&)>, std::string> cases[]{
        {"getMe", connect, "The bot was forgotten meanwhile."},
        {"getUpdates", find, noBot},
        {"getChat", find, noBot},
        {"getUpdates", create, noGroup},
        {"editForumTopic", create, noGroup},
        {"createForumTopic", create, noGroup},
        {"editForumTopic", rename, ""},
    };
    for (const auto& [heldUp, action, message] : cases) {
        SCOPED_TRACE(heldUp + message);
        ConnectedComputer computer;
        computer.sandbox.addBot("8:second", "second_bot");
        if (message == noGroup) {
            computer.forgetThreads();
            computer.store->changeConfig(
                [](Config& config) { config.topics.back().name = "Another"; });
        }
        computer.sandbox.failNext(onlyFor(heldUp, flood(1)));
        auto acting = action(*computer.store);
        ASSERT_TRUE(waitUntil([&] { return computer.clock.pending() == 1; }));
        computer.store->forgetBot();
        computer.clock.advance(2s);
        EXPECT_EQ(computer.failure(std::move(acting)), message);
        EXPECT_EQ(computer.store->config(), Config{});
        EXPECT_TRUE(computer.secrets.values.empty());
        EXPECT_EQ(std::ranges::count(computer.methods(), heldUp), 2) << "and no further one";
    }
}

TEST(SetupActions, LeaveASendThatHasBegunItsGroup) {
    ConnectedComputer computer;
    std::string list;
    for (const char* name : {"a.pdf", "b.pdf"}) {
        computer.setContent(name, "x");
        list += "file://" + computer.path(name).native() + "\r\n";
    }
    computer.sandbox.failNext(flood(1));
    computer.pasteboard.copy({{"text/uri-list", list.c_str()}});
    auto sending = computer.store->sendClipboard(Trigger::button);
    // What is pending is the banner that tells of a long send, and the wait that the server asks
    // for.
    ASSERT_TRUE(waitUntil(
        [&] { return !computer.sandbox.requests().empty() && computer.clock.pending() == 2; }));
    computer.sandbox.userSays(computer.sandbox.addGroup(), "hi");
    await(computer.store->findGroup());
    await(computer.store->createTopics());
    computer.store->forgetBot();
    computer.clock.advance(2s);
    await(std::move(sending));
    const Json topics = computer.sandbox.view()["groups"][0]["topics"]; // "General" is the first
    EXPECT_THAT(topics[3]["messages"], SizeIs(3)) << "its creation and both files";
}

TEST(Topics, AreFoundAgainWithoutAWelcome) {
    ConnectedComputer computer;
    const auto before = computer.threads();
    // Twice in a row: what the first run asks must not make the second blind.
    for (int run = 0; run < 2; ++run) {
        computer.forgetThreads();
        computer.clear();
        await(computer.store->createTopics());
        EXPECT_EQ(computer.threads(), before);
        EXPECT_THAT(computer.methods(),
                    ElementsAre("getUpdates", "editForumTopic", "editForumTopic", "editForumTopic",
                                "editForumTopic"));
        EXPECT_THAT(computer.newEvents(), ElementsAre(R"(setup_step {"step":"topics_reused"})"));
    }
}

TEST(Topics, AreMadeAnewWhereTheOldOnesAreGone) {
    ConnectedComputer computer;
    const auto before = computer.threads();
    computer.sandbox.deleteTopic(computer.group, *before[0]);
    // A later topic of the same name is the one to use, and a name given later counts too.
    const auto twin = computer.sandbox.userCreatesTopic(computer.group, "📸 Images");
    const auto renamed = computer.sandbox.userCreatesTopic(computer.group, "Old files");
    computer.sandbox.userRenamesTopic(computer.group, renamed, "📎 Files");
    computer.forgetThreads();
    await(computer.store->createTopics());

    const auto after = computer.threads();
    EXPECT_GT(*after[0], renamed) << "created anew";
    EXPECT_EQ(after[1], twin);
    EXPECT_EQ(after[2], renamed);
    EXPECT_EQ(after[3], before[3]);
    EXPECT_EQ(computer.newEvents().back(), R"(setup_step {"step":"topics_created"})");
    EXPECT_THAT(computer.messages("notes"), IsEmpty()) << "but the welcome";
    EXPECT_EQ(computer.methods().back(), "sendMessage");

    // One that is gone does not show until somebody looks for it.
    computer.sandbox.deleteTopic(computer.group, *after[2]);
    await(computer.store->createTopics());
    EXPECT_EQ(computer.threads(), after);
    computer.clear();
    const auto lose = [](Store& store) -> QCoro::Task<> {
        co_await store.dropLostTopics();
        co_await store.createTopics();
    };
    computer.sandbox.failNext(refusal("editForumTopic", 400, "not enough rights"));
    await(lose(*computer.store));
    EXPECT_THAT(computer.threads(),
                ElementsAre(after[0], after[1], testing::Gt(after[3]), after[3]));
    EXPECT_THAT(computer.newEvents(), ElementsAre(R"(setup_step {"step":"topics_created"})"));
}

TEST(Topics, AreMadeThoughTheUpdatesCannotBeHad) {
    ConnectedComputer computer;
    computer.forgetThreads();
    for (const auto& fault : {answer("getUpdates", 502, "<html>"), answer("getUpdates", Json(7))})
        computer.sandbox.failNext(fault);
    await(computer.store->createTopics());
    EXPECT_TRUE(computer.store->isReady());
}

TEST(Topics, NeedTheRightToManageThem) {
    ConnectedComputer computer;
    const auto before = computer.threads();
    computer.forgetThreads();
    computer.store->changeConfig([](Config& config) { config.topics[2].name = "Papers"; });
    computer.sandbox.addBotToGroup(computer.group, sandbox::BotRole::admin);
    computer.clear();
    EXPECT_EQ(computer.failure(computer.store->createTopics()), cannotCreateText);
    EXPECT_THAT(computer.threads(), ElementsAre(before[0], before[1], std::nullopt, std::nullopt));
    EXPECT_THAT(computer.newEvents(), IsEmpty());
    EXPECT_EQ(computer.methods().back(), "createForumTopic") << "the fourth is not tried";
}

TEST(Topics, StayWhenTheWelcomeFails) {
    ConnectedComputer computer;
    computer.sandbox.userSays(computer.sandbox.addGroup(), "hi");
    await(computer.store->findGroup());
    computer.clear();
    computer.sandbox.failNext(refusal("sendMessage", 403, "muted"));
    EXPECT_EQ(computer.failure(computer.store->createTopics()), "muted");
    EXPECT_TRUE(computer.store->isReady());
    EXPECT_THAT(computer.newEvents(), ElementsAre(R"(setup_step {"step":"topics_created"})"));
    computer.clear();
    EXPECT_EQ(computer.failure(computer.store->createTopics()), "");
    EXPECT_THAT(computer.methods(), ElementsAre("getUpdates"));
}

TEST(Topics, AreRenamedUntilOneFails) {
    ConnectedComputer computer;
    computer.store->changeConfig([](Config& config) {
        config.topics[1].name = "Pictures";
        config.topics[2].threadId.reset();
    });
    const Config before = computer.store->config();
    computer.clear();
    EXPECT_EQ(computer.failure(computer.store->renameTopics()), "");
    const auto requests = computer.sandbox.requests();
    ASSERT_THAT(requests, SizeIs(3)) << "none for the topic without a thread";
    EXPECT_THAT(requests[0].error, HasSubstr("NOT_MODIFIED"));
    EXPECT_EQ(computer.calls()[1], R"(editForumTopic {"chat_id":)" +
                                       std::to_string(computer.group) + R"(,"message_thread_id":)" +
                                       std::to_string(*before.topics[1].threadId) +
                                       R"(,"name":"Pictures"})");
    EXPECT_EQ(requests[1].error, "");
    EXPECT_EQ(computer.store->config(), before);

    computer.sandbox.deleteTopic(computer.group, *before.topics[0].threadId);
    computer.clear();
    EXPECT_THAT(computer.failure(computer.store->renameTopics()), HasSubstr("TOPIC_ID_INVALID"));
    EXPECT_THAT(computer.methods(), ElementsAre("editForumTopic"));
}

} // namespace quillon::test
