#include "platform/linux/http/CurlTransport.h"
#include "sandbox/Sandbox.h"
#include "support/Await.h"

#include <QTimer>

namespace quillon::sandbox {

namespace {

std::string repeated(std::size_t count, const std::string& text) {
    return QByteArray::fromStdString(text).repeated(static_cast<qsizetype>(count)).toStdString();
}

struct Reply {
    int status = 0; ///< 0 when no whole reply came
    std::string text;

    [[nodiscard]] Json json() const { return Json::parse(text, nullptr, false); }
    [[nodiscard]] Json result() const { return json().value("result", Json{}); }
    /// The description of a refusal; empty for a call that was accepted.
    [[nodiscard]] std::string error() const { return json().value("description", std::string{}); }
};

struct Methods : testing::Test {
    Methods() {
        sandbox.addBot(Sandbox::demoToken, "demo_bot");
        group = sandbox.addGroup();
    }

    /// Calls a method for the demonstration's bot.
    Reply call(const std::string& method, const Json& parameters = Json::object()) {
        return post(path(method), dumped(parameters));
    }
    Reply post(const std::string& path, const std::string& json) {
        const auto reply = test::await(http.post({.url = sandbox.baseUrl() + path,
                                                  .headers = {{"Content-Type", "application/json"}},
                                                  .body = {QByteArray::fromStdString(json)},
                                                  .progress = {}}));
        return reply ? Reply{reply->status, reply->body.toStdString()} : Reply{};
    }
    static std::string path(const std::string& method) {
        return "/bot" + std::string{Sandbox::demoToken} + "/" + method;
    }
    Json updates(const Json& parameters = Json::object()) {
        return call("getUpdates", parameters).result();
    }

    Sandbox sandbox;
    std::int64_t group = 0;
    CurlTransport http{{.allowHttp = true}};
};

} // namespace

TEST_F(Methods, takeTheChatAsNumberOrTextAndNothingElse) {
    EXPECT_EQ(call("getChat", {{"chat_id", std::to_string(group)}}).status, 200);
    EXPECT_EQ(call("getChat", {{"chat_id", group}}).result()["is_forum"], true);
    EXPECT_EQ(call("getChat", {{"chat_id", -5}}).error(), "Bad Request: chat not found");
    const auto raw = [&](const std::string& body) { return post(path("getChat"), body).error(); };
    EXPECT_EQ(raw("[]"), "Bad Request: JSON object expected");
    EXPECT_EQ(raw("{\"chat_id\":\"\xFF\"}"), "Bad Request: strings must be encoded in UTF-8");
}

TEST_F(Methods, holdTextsToTheirLimits) {
    // A text without an error is accepted.
    const std::tuple<std::string, std::string, std::string> cases[]{
        {"", "", "Bad Request: message text is empty"},
        {"", " \n\u200B\u3000", "Bad Request: text must be non-empty"},
        {"", std::string(4097, 'x'), "Bad Request: message is too long"},
        {"", repeated(4096, "😀"), ""},
        {"html", "<pre>" + repeated(4096, "&amp;") + "</pre>", ""},
        {"HTML", repeated(8193, "&lt;"), "Bad Request: text is too long"},
        {"HTML", "a<x>",
         "Bad Request: can't parse entities: Unsupported start tag \"x\" at byte "
         "offset 1"},
    };
    for (const auto& [mode, text, error] : cases) {
        const Reply reply =
            call("sendMessage", {{"chat_id", group}, {"parse_mode", mode}, {"text", text}});
        EXPECT_EQ(reply.error(), error);
    }
}

TEST_F(Methods, refuseTopicsWithoutTheirConditions) {
    const auto create = [&](std::int64_t chat, const std::string& name, int color) {
        return call("createForumTopic", {{"chat_id", chat}, {"name", name}, {"icon_color", color}});
    };
    EXPECT_EQ(create(group, "\n ", 7322096).status, 400);
    EXPECT_EQ(create(group, "x", 7322097).status, 400);
    EXPECT_EQ(create(group, " a\n& b ", 7322096).result()["name"], "a & b");
    EXPECT_EQ(create(group, repeated(129, "é"), 16478047).result()["name"], repeated(128, "é"));
    sandbox.addBotToGroup(group, BotRole::kicked);
    EXPECT_EQ(create(group, "x", 7322096).error(),
              "Forbidden: bot was kicked from the supergroup chat");
}

TEST_F(Methods, tellABotWhatItMayDoWithoutASign) {
    const auto act = [&](std::int64_t thread, const char* action) {
        return call("sendChatAction",
                    {{"chat_id", group}, {"message_thread_id", thread}, {"action", action}})
            .error();
    };
    const auto rights = [&] {
        return call("getChatMember", {{"chat_id", group}, {"user_id", 7000000001}}).result();
    };
    const std::int64_t topic = sandbox.userCreatesTopic(group, "Topic");
    const Json before = sandbox.view();
    EXPECT_EQ(act(topic, "cancel"), "");
    EXPECT_EQ(act(topic, "dance"), "Bad Request: wrong parameter action in request");
    EXPECT_EQ(act(topic + 100, "typing"), "Bad Request: message thread not found");
    EXPECT_EQ(rights()["can_manage_topics"], true);
    EXPECT_EQ(sandbox.view(), before);
    sandbox.addBotToGroup(group, BotRole::admin);
    EXPECT_EQ(rights()["can_manage_topics"], false);
    sandbox.addBotToGroup(group, BotRole::kicked);
    EXPECT_EQ(act(topic, "typing"), "Forbidden: bot was kicked from the supergroup chat");
}

TEST_F(Methods, recordOnlyUpdatesAllowedAtTheTime) {
    updates({{"allowed_updates", {"message"}}});
    sandbox.userSays(group, "hi");
    sandbox.addBotToGroup(group, BotRole::member);
    sandbox.userSays(group, "unheard: the bot is no administrator");
    Json all = updates();
    ASSERT_EQ(all.size(), 3);
    EXPECT_TRUE(all[0].contains("my_chat_member"));
    EXPECT_EQ(all[2]["message"]["text"], "hi");
    EXPECT_EQ(updates(), all);
    const auto last = all[2]["update_id"].get<std::int64_t>();
    EXPECT_EQ(updates({{"offset", last}, {"limit", 500}}).size(), 1);
    EXPECT_EQ(updates({{"offset", last + 1}}).size(), 0);
}

TEST_F(Methods, endALongPollWithTheNextUpdate) {
    updates({{"offset", -1}});
    const auto last = updates()[0]["update_id"].get<std::int64_t>();
    QTimer::singleShot(std::chrono::milliseconds{50},
                       [this] { sandbox.userSays(group, "at last"); });
    const Json late = updates({{"offset", last + 1}, {"timeout", 15}});
    EXPECT_EQ(late.back()["message"]["text"], "at last");
}

TEST_F(Methods, failAsOrderedOverHttp) {
    const auto order = [this](const Json& fault) { return post("/sandbox/fail", dumped(fault)); };
    EXPECT_EQ(order({{"kind", "answer"}, {"status", 418}, {"body", "tea"}}).status, 200);
    const Reply met = call("getMe");
    EXPECT_EQ(met.status, 418);
    EXPECT_EQ(met.text, "tea");
    EXPECT_EQ(call("getMe").status, 200) << "only one call is met";
    for (const Json& unknown : {Json{{"kind", "hangs"}}, Json{{"kind", "hang"}, {"hangs", 500}}}) {
        const Reply refused = order(unknown);
        EXPECT_EQ(refused.status, 400);
        EXPECT_NE(refused.text.find("hangs"), std::string::npos) << refused.text;
        EXPECT_EQ(call("getMe").status, 200) << "it was not taken";
    }
}

} // namespace quillon::sandbox
