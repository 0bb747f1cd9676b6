#include "support/ConnectedComputer.h"
#include "support/Faults.h"

namespace quillon::test {

namespace {

constexpr const char* refusedText = "Telegram didn't accept that bot token.";
constexpr const char* malformedText = "That bot token doesn't look right.";
constexpr const char* noTokenText =
    "That doesn't look like a bot token. It looks like 123456:ABC-DEF…";
constexpr const char* noGroupText =
    "No group found yet. Add the bot to your group, then send “hi” in the group and try again.";

std::string storedToken(const TestComputer& computer) {
    const auto found = computer.secrets.values.find({"quillon-telegram-token", "quillon"});
    return found == computer.secrets.values.end() ? "" : found->second;
}

} // namespace

TEST(BotConnection, KeepsATokenThatTelegramAccepts) {
    BotComputer computer;
    const std::string pasted = "\u00a0\t " + std::string{BotComputer::token} + " \r\n";
    EXPECT_EQ(await(computer.store->connectBot(pasted)), "quillon_demo_bot");
    EXPECT_EQ(storedToken(computer), BotComputer::token);
    EXPECT_TRUE(computer.store->tokenSaved());
    EXPECT_THAT(computer.calls(), ElementsAre("getMe {}"));
    EXPECT_THAT(computer.events(), ElementsAre(R"(setup_step {"step":"bot_connected"})"));
    EXPECT_EQ(computer.content("config.json").find(BotComputer::token), std::string::npos);
    computer.restart();
    EXPECT_TRUE(computer.store->tokenSaved());
    EXPECT_EQ(computer.store->config().botName, "quillon_demo_bot");
}

TEST(BotConnection, RefusesWhatIsNoTokenAndKeepsTheOldOne) {
    const std::tuple<std::string, std::string, std::size_t> cases[]{
        {"", noTokenText, 0},
        {"123456 ABC", noTokenText, 0},
        {"1:a b", malformedText, 0},
        {"1:a[b]", malformedText, 0},
        {"1:a#b", malformedText, 0},
        {"1:a?b", malformedText, 0},
        {"1:a/b", malformedText, 0},
        {"1:a%2Fb", malformedText, 0},
        {"999:unknown-to-everyone", refusedText, 1}, // 401
        {":", "Not Found", 1},                       // 404
    };
    ConnectedComputer computer;
    const Config before = computer.store->config();
    for (const auto& [pasted, message, requests] : cases) {
        computer.clear();
        EXPECT_EQ(computer.failure(computer.store->connectBot(pasted)), message) << pasted;
        EXPECT_THAT(computer.sandbox.requests(), SizeIs(requests)) << pasted;
    }
    computer.sandbox.stop();
    EXPECT_THAT(computer.failure(computer.store->connectBot("8:another")),
                StartsWith("Couldn't reach Telegram."));
    EXPECT_EQ(storedToken(computer), BotComputer::token);
    EXPECT_TRUE(computer.store->tokenSaved());
    EXPECT_EQ(computer.store->config(), before);
    EXPECT_THAT(computer.newEvents(), IsEmpty());
}

TEST(BotConnection, NamesABotThatHasNoName) {
    for (const Json& me : {Json{{"id", 1}}, Json{{"username", 7}}, Json(true), Json()}) {
        BotComputer computer;
        computer.sandbox.failNext(answer("getMe", me));
        EXPECT_EQ(await(computer.store->connectBot(BotComputer::token)), "your bot") << me;
        EXPECT_EQ(computer.store->config().botName, "your bot");
    }
}

TEST(BotConnection, AsksOnceMoreWhereAKeptConnectionBreaks) {
    ConnectedComputer computer;
    computer.sandbox.userSays(computer.group, "hi");
    for (const char* method : {"getMe", "getUpdates", "getChat"})
        computer.sandbox.failNext(onlyFor(method, fault(sandbox::FaultKind::cutAfterBody)));
    EXPECT_EQ(computer.failure(computer.store->connectBot(BotComputer::token)), "");
    EXPECT_EQ(computer.failure(computer.store->findGroup()), "");
    EXPECT_THAT(computer.methods(),
                ElementsAre("getMe", "getMe", "getUpdates", "getUpdates", "getChat", "getChat"));
}

TEST(BotConnection, KeepsGroupAndTopicsForAnotherBot) {
    ConnectedComputer computer;
    Config expected = computer.store->config();
    expected.botName = "second_bot";
    computer.sandbox.addBot("8:second", "second_bot");
    await(computer.store->connectBot("8:second"));
    EXPECT_EQ(computer.store->config(), expected);
    EXPECT_EQ(storedToken(computer), "8:second");
}

TEST(BotConnection, ForgetsEverythingButTheUsersChoices) {
    ConnectedComputer computer;
    computer.store->changeConfig([](Config& config) {
        config.shortcut = ShortcutChoice::ctrlOptC;
        config.playSound = false;
        config.showBanner = false;
        config.bannerPosition = BannerPosition::bottom;
        config.topics[0].name = "Mine";
    });
    computer.send({{"UTF8_STRING", "a"}});
    computer.clear();
    computer.store->forgetBot();

    Config expected;
    expected.shortcut = ShortcutChoice::ctrlOptC;
    expected.playSound = false;
    expected.showBanner = false;
    expected.bannerPosition = BannerPosition::bottom;
    EXPECT_EQ(computer.store->config(), expected);
    EXPECT_THAT(computer.store->history(), SizeIs(1));
    EXPECT_EQ(storedToken(computer), "");
    EXPECT_THAT(computer.methods(), IsEmpty());
    EXPECT_EQ(computer.failure(computer.store->findGroup()), "Connect your bot first.");
    EXPECT_EQ(computer.failure(computer.store->createTopics()), "Find your group first.");
    EXPECT_EQ(computer.failure(computer.store->renameTopics()), "");
    computer.restart();
    EXPECT_FALSE(computer.store->tokenSaved());
    EXPECT_EQ(computer.store->config(), expected);
}

TEST(GroupDiscovery, FindsTheGroupThatSpokeLast) {
    BotComputer computer;
    sandbox::Sandbox& phone = computer.sandbox;
    await(computer.store->connectBot(BotComputer::token));
    const auto group = [&](const std::string& title, sandbox::GroupOptions options = {}) {
        options.title = title;
        return phone.addGroup(options);
    };
    const auto expectFound = [&](std::int64_t id, const std::string& title) {
        SCOPED_TRACE(title);
        computer.clear();
        await(computer.store->findGroup());
        EXPECT_EQ(computer.store->config().chatId, id);
        EXPECT_EQ(computer.store->config().chatTitle, title);
        EXPECT_THAT(computer.newEvents(), ElementsAre(R"(setup_step {"step":"group_found"})"));
        EXPECT_THAT(computer.calls(),
                    ElementsAre(R"(getUpdates {"allowed_updates":["message","my_chat_member"]})",
                                R"(getChat {"chat_id":)" + std::to_string(id) + "}"));
    };
    const auto first = group("First");
    phone.userSays(group("Second"), "hi");
    phone.userSays(first, "hi");
    expectFound(first, "First");

    const auto basic = group("Converted", {.kind = sandbox::ChatKind::group});
    phone.userSays(basic, "hi");
    expectFound(phone.migrateGroup(basic), "Converted");

    // A membership alone, without a message.
    const auto silent = group("Silent", {.bot = sandbox::BotRole::absent});
    phone.addBotToGroup(silent);
    phone.failNext(answer(
        "getUpdates",
        Json::array({{{"my_chat_member", {{"chat", {{"id", silent}, {"type", "supergroup"}}}}}}})));
    expectFound(silent, "Silent");
}

TEST(GroupDiscovery, SaysWhatIsMissing) {
    ConnectedComputer computer;
    const Config before = computer.store->config();
    const auto updates = [](const Json& list) { return answer("getUpdates", list); };
    const auto chat = [](const Json& reply) { return answer("getChat", reply); };
    const auto message = [](const Json& content) { return Json::array({{{"message", content}}}); };
    const std::string topicsOff = ", but Topics are off. Turn on Topics in the group settings.";
    const std::pair<sandbox::Fault, std::string> cases[] = {
        {updates(Json::array()), noGroupText},
        {updates(true), noGroupText},
        {updates(Json::array({1, "x", {{"message", 7}}})), noGroupText},
        {updates(message({{"chat", {{"id", 5}, {"type", "private"}}}})), noGroupText},
        {updates(message({{"chat", {{"id", -5}, {"type", "group"}}}})), noGroupText},
        {updates(message({{"chat", {{"id", "-5"}, {"type", "supergroup"}}}})), noGroupText},
        {chat({{"title", "Family"}, {"is_forum", false}}), "Found “Family”" + topicsOff},
        {chat({{"title", 7}, {"is_forum", "true"}}), "Found “your group”" + topicsOff},
        {chat(Json()), "Found “your group”" + topicsOff},
        {refusal("getUpdates", 401, "x"), refusedText},
        {refusal("getChat", 400, "gone"), "gone"},
    };
    for (const auto& [fault, expected] : cases) {
        computer.sandbox.clearFaults();
        computer.sandbox.failNext(fault);
        EXPECT_EQ(computer.failure(computer.store->findGroup()), expected);
        EXPECT_EQ(computer.store->config(), before);
    }
    EXPECT_THAT(computer.newEvents(), IsEmpty());
}

TEST(GroupDiscovery, ClearsThreadsForAnotherGroupAlone) {
    ConnectedComputer computer;
    computer.store->changeConfig([](Config& config) { config.topics[1].name = "Pictures"; });
    const auto before = computer.threads();
    computer.sandbox.failNext(answer("getChat", {{"is_forum", true}}));
    await(computer.store->findGroup());
    EXPECT_EQ(computer.threads(), before);
    EXPECT_EQ(computer.store->config().chatTitle, std::nullopt);

    computer.sandbox.userSays(computer.sandbox.addGroup(), "hi");
    await(computer.store->findGroup());
    EXPECT_THAT(computer.threads(), testing::Each(std::nullopt));
    EXPECT_EQ(computer.store->config().topics[1].name, "Pictures");
}

} // namespace quillon::test
