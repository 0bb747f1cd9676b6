#include "SandboxClient.h"

#include <QTimer>

#include <gtest/gtest.h>

namespace quillon::sandbox {

namespace {

std::string bigEndian(unsigned value) {
    return {static_cast<char>(value >> 24u), static_cast<char>(value >> 16u),
            static_cast<char>(value >> 8u), static_cast<char>(value)};
}

std::string png(unsigned width, unsigned height, std::size_t size = 0) {
    using namespace std::string_literals;
    std::string bytes = "\x89PNG\r\n\x1A\n\0\0\0\x0DIHDR"s + bigEndian(width) + bigEndian(height) +
                        "\x08\x02\0\0\0....\0\0\0\0IDAT...."s;
    if (bytes.size() < size) bytes.append(size - bytes.size(), '.');
    return bytes;
}

std::string repeated(std::size_t count, const std::string& text) {
    std::string result;
    for (std::size_t i = 0; i < count; ++i)
        result += text;
    return result;
}

class Methods : public testing::Test {
protected:
    Methods() {
        sandbox.addBot(Sandbox::demoToken, "demo_bot");
        group = sandbox.addGroup();
    }

    Json updates(const Json& parameters = Json::object()) {
        return client.call("getUpdates", parameters).result();
    }

    Sandbox sandbox;
    std::int64_t group = 0;
    Client client{sandbox};
};

} // namespace

TEST_F(Methods, refuseTokensAsTelegramDoes) {
    const std::vector<std::pair<std::string, int>> cases{
        {"/bot1:abc/getMe", 401}, {"/bot1:abc/nope", 401},    {"/botabc/getMe", 404},
        {"/bot1:/getMe", 404},    {"/bot1:a%20b/getMe", 404}, {client.path("getMee"), 404},
        {"/getMe", 404},          {client.path("GETME"), 200}};
    for (const auto& [path, status] : cases) {
        const Reply reply = client.post(path, "application/json", "{}");
        EXPECT_EQ(reply.status, status) << path;
        EXPECT_EQ(reply.json().value("ok", false), status == 200) << path;
    }
    EXPECT_EQ(client.post("/bot1:abc/getMe", "application/json", "{}").text,
              R"({"ok":false,"error_code":401,"description":"Unauthorized"})");
}

TEST_F(Methods, takeParametersFromEverywhere) {
    const std::string chat = "chat_id=" + std::to_string(group);
    EXPECT_EQ(client.post(client.path("getChat") + "?" + chat, "text/plain", "").status, 200);
    EXPECT_EQ(client.post(client.path("getChat"), "application/x-www-form-urlencoded", chat).status,
              200);
    EXPECT_EQ(client.call("getChat", {{"chat_id", std::to_string(group)}}).status, 200);
    EXPECT_EQ(client.call("getChat", {{"chat_id", group}}).result()["is_forum"], true);
    EXPECT_EQ(client.call("getChat").error(), "Bad Request: chat_id is empty");
    EXPECT_EQ(client.call("getChat", {{"chat_id", -5}}).error(), "Bad Request: chat not found");
    EXPECT_TRUE(sandbox.requests()[3].parameter("chat_id").is_number_integer());
    EXPECT_TRUE(sandbox.requests()[2].parameter("chat_id").is_string());
    const auto raw = [&](const std::string& body) {
        return client.post(client.path("getChat"), "application/json", body).error();
    };
    EXPECT_EQ(raw("[]"), "Bad Request: JSON object expected");
    EXPECT_EQ(raw("{\"chat_id\":\"\xFF\"}"), "Bad Request: strings must be encoded in UTF-8");
}

TEST_F(Methods, holdTextsToTheirLimits) {
    struct Case {
        std::string mode;
        std::string text;
        std::string error; ///< empty when the text is accepted
    };
    const std::vector<Case> cases{
        {"", "", "Bad Request: message text is empty"},
        {"", " \n\u200B\u3000", "Bad Request: text must be non-empty"},
        {"HTML", "<pre></pre>", "Bad Request: text must be non-empty"},
        {"", std::string(4096, 'x'), ""},
        {"", std::string(4097, 'x'), "Bad Request: message is too long"},
        {"", repeated(4096, "😀"), ""},
        {"html", "<pre>" + repeated(4096, "&amp;") + "</pre>", ""},
        {"HTML", repeated(8192, "&lt;"), "Bad Request: message is too long"},
        {"HTML", repeated(8193, "&lt;"), "Bad Request: text is too long"},
        {"HTML", "a<x>",
         "Bad Request: can't parse entities: Unsupported start tag \"x\" at byte "
         "offset 1"},
        {"", "a<x>", ""},
    };
    for (const Case& expected : cases) {
        const Reply reply = client.call(
            "sendMessage",
            {{"chat_id", group}, {"parse_mode", expected.mode}, {"text", expected.text}});
        EXPECT_EQ(reply.error(), expected.error);
    }
}

TEST_F(Methods, holdPhotosToTheirLimits) {
    struct Case {
        std::string bytes;
        std::string error;
    };
    const std::vector<Case> cases{
        {png(9999, 1), "Bad Request: PHOTO_INVALID_DIMENSIONS"},
        {png(9500, 500), ""},
        {png(9500, 501), "Bad Request: PHOTO_INVALID_DIMENSIONS"},
        {png(2000, 100), ""},
        {png(100, 2001), "Bad Request: PHOTO_INVALID_DIMENSIONS"},
        {png(0xFFFFFFFF, 1), "Bad Request: IMAGE_PROCESS_FAILED"},
        {png(0x7FFFFFFF, 0x7FFFFFFF), "Bad Request: PHOTO_INVALID_DIMENSIONS"},
        {"\x89PNG\r\n\x1A\n", "Bad Request: IMAGE_PROCESS_FAILED"},
        {"\xFF\xD8\xFF\xE0", "Bad Request: IMAGE_PROCESS_FAILED"},
        {"no picture", "Bad Request: IMAGE_PROCESS_FAILED"},
        {"", "Bad Request: file must be non-empty"},
        {png(100, 100, 10'485'760), ""},
        {png(100, 100, 10'485'761),
         "Bad Request: file of size 10485761 bytes is too big for a photo; the maximum size is "
         "10485760 bytes"},
    };
    for (const Case& expected : cases) {
        const Reply reply =
            client.upload("sendPhoto", {{"chat_id", group}}, "photo", expected.bytes);
        EXPECT_EQ(reply.error(), expected.error);
    }
    EXPECT_EQ(client.upload("sendPhoto", {{"chat_id", group}}, "document", "x").error(),
              "Bad Request: there is no photo in the request");
    const Json tooLong{{"chat_id", group}, {"caption", std::string(1025, 'x')}};
    EXPECT_EQ(client.upload("sendPhoto", tooLong, "photo", png(9, 9)).error(),
              "Bad Request: message caption is too long");
}

TEST_F(Methods, takeDocumentsOfFiftyMegabytes) {
    std::string bytes(52'428'800, 'x');
    EXPECT_EQ(client.upload("sendDocument", {{"chat_id", group}}, "document", bytes).status, 200);
    bytes += 'x';
    const Reply refused = client.upload("sendDocument", {{"chat_id", group}}, "document", bytes);
    EXPECT_EQ(refused.status, 413);
    EXPECT_EQ(refused.error(), "Request Entity Too Large");
    // So much that it is refused unread.
    bytes.resize(70'000'000);
    EXPECT_EQ(client.upload("sendDocument", {{"chat_id", group}}, "document", bytes).status, 413);
}

TEST_F(Methods, refuseTopicsWithoutTheirConditions) {
    const auto create = [&](std::int64_t chat, const std::string& name, int color) {
        return client.call("createForumTopic",
                           {{"chat_id", chat}, {"name", name}, {"icon_color", color}});
    };
    EXPECT_EQ(create(group, "\n ", 7322096).status, 400);
    EXPECT_EQ(create(group, "x", 7322097).status, 400);
    EXPECT_EQ(create(group, " a\n& b ", 7322096).result()["name"], "a & b");
    EXPECT_EQ(create(group, repeated(129, "é"), 16478047).result()["name"], repeated(128, "é"));
    const auto send = [&](std::int64_t thread) {
        return client.call("sendMessage",
                           {{"chat_id", group}, {"message_thread_id", thread}, {"text", "x"}});
    };
    const std::int64_t topic = create(group, "x", 7322096).result()["message_thread_id"];
    EXPECT_EQ(send(topic).error(), "");
    sandbox.deleteTopic(group, topic);
    for (const std::int64_t missing : {topic, std::int64_t{1}})
        EXPECT_EQ(send(missing).error(), "Bad Request: message thread not found");
    sandbox.addBotToGroup(group, BotRole::admin);
    EXPECT_EQ(create(group, "x", 7322096).error(),
              "Bad Request: not enough rights to create a topic");
    sandbox.addBotToGroup(group, BotRole::kicked);
    EXPECT_EQ(create(group, "x", 7322096).error(),
              "Forbidden: bot was kicked from the supergroup chat");
    sandbox.addBotToGroup(group);
    sandbox.setForum(group, false);
    EXPECT_EQ(create(group, "x", 7322096).error(), "Bad Request: the chat is not a forum");
    const auto basic = sandbox.addGroup({.title = "Old", .kind = ChatKind::group});
    const auto moved = sandbox.migrateGroup(basic);
    const Reply reply = client.call("sendMessage", {{"chat_id", basic}, {"text", "x"}});
    EXPECT_EQ(reply.json()["parameters"]["migrate_to_chat_id"], moved);
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

TEST_F(Methods, tellAnimationsFromDocumentsUnlessAskedNotTo) {
    Json parameters{{"chat_id", group}};
    client.upload("sendDocument", parameters, "document", "GIF89a", "dir/x.gif");
    parameters["disable_content_type_detection"] = "true";
    client.upload("sendDocument", parameters, "document", "GIF89a", "dir/x.gif");
    const Json shown = sandbox.view()["groups"][0]["topics"][0]["messages"];
    EXPECT_EQ(shown[1]["kind"], "animation");
    EXPECT_EQ(shown[2]["kind"], "document");
    EXPECT_EQ(shown[2]["filename"], "x.gif");
    EXPECT_EQ(shown[2]["sha256"], // of the six bytes GIF89a
              "610f5ae4d76e332636a17bd357fd6ce99029316a99d320280d4d77a746bf29e8");
}

} // namespace quillon::sandbox
