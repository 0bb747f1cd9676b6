#include "SandboxClient.h"

#include <gtest/gtest.h>

namespace quillon::sandbox {

namespace {

class Faults : public testing::Test {
protected:
    Faults() { sandbox.addBot(Sandbox::demoToken); }

    Sandbox sandbox;
    Client client{sandbox};
};

} // namespace

TEST_F(Faults, breakConnections) {
    const std::string body(2'000'000, 'x');
    const std::vector<std::pair<FaultKind, CURLcode>> cases{
        {FaultKind::cutAfterBody, CURLE_GOT_NOTHING},
        {FaultKind::cutReply, CURLE_PARTIAL_FILE},
        {FaultKind::hang, CURLE_OPERATION_TIMEDOUT},
    };
    for (const auto& [kind, code] : cases) {
        Fault fault;
        fault.kind = kind;
        sandbox.failNext(fault);
        Client fresh{sandbox};
        fresh.timeoutMs = kind == FaultKind::hang ? 200 : fresh.timeoutMs;
        EXPECT_EQ(fresh.upload("sendDocument", {}, "document", body).code, code) << fault.name();
        EXPECT_EQ(fresh.call("getMe").status, 200) << "only one call is met";
    }
    EXPECT_EQ(sandbox.requests()[0].parameters.files[0].size, body.size());
}

TEST_F(Faults, cutBeforeTheBodyIsRead) {
    Fault fault;
    fault.kind = FaultKind::cutBeforeBody;
    sandbox.failNext(fault);
    const std::string body(20'000'000, 'x');
    const CURLcode code = client.upload("sendDocument", {}, "document", body).code;
    EXPECT_TRUE(code == CURLE_SEND_ERROR || code == CURLE_RECV_ERROR) << code;
    EXPECT_TRUE(sandbox.requests()[0].parameters.files.empty());
}

TEST_F(Faults, resetNewConnections) {
    EXPECT_EQ(client.call("getMe").status, 200);
    Fault fault;
    fault.kind = FaultKind::closeAtAccept;
    fault.count = 3; // libcurl may try a broken connection anew
    sandbox.failNext(fault);
    EXPECT_NE(client.call("getMe").code, CURLE_OK);
    sandbox.clearFaults();
    EXPECT_EQ(client.call("getMe").status, 200);
}

TEST_F(Faults, standInForReplies) {
    const std::vector<std::pair<Json, std::pair<long, std::string>>> cases{
        {{{"kind", "html-502"}}, {502, "<html>"}},
        {{{"kind", "empty"}, {"status", 404}}, {404, ""}},
        {{{"kind", "truncated-json"}}, {200, "{\"ok\":true,"}},
        {{{"kind", "json-list"}}, {200, "["}},
        {{{"kind", "retry-after"}, {"retry_after", 3}},
         {429, R"({"ok":false,"error_code":429,"description":"Too Many Requests: retry after 3",)"
               R"("parameters":{"retry_after":3}})"}},
        {{{"kind", "answer"}, {"status", 418}, {"body", {{"ok", 1}}}}, {418, "{\"ok\":1}"}},
        {{{"kind", "trickle"}, {"delay_ms", 1}}, {200, "{\"ok\":true,"}},
        {{{"kind", "delay"}, {"delay_ms", 1}}, {200, "{\"ok\":true,"}},
    };
    for (const auto& [fault, expected] : cases) {
        EXPECT_EQ(client.post("/sandbox/fail", "application/json", dumped(fault)).status, 200);
        const Reply reply = client.call("getMe");
        EXPECT_EQ(reply.status, expected.first) << fault;
        EXPECT_TRUE(reply.text.starts_with(expected.second)) << fault << reply.text;
    }
    sandbox.failNext(Fault::fromJson({{"kind", "huge-reply"}}));
    EXPECT_GT(client.call("getMe").text.size(), 20'000'000);
    for (const RequestRecord& record : sandbox.requests())
        EXPECT_EQ(record.connection, 1) << "none of these ends the connection";
}

TEST_F(Faults, areRefusedByNameWhereUnknown) {
    const std::vector<std::pair<std::string, std::string>> cases{
        {R"({"kind":"hangs"})", "hangs"},
        {R"({"count":2})", R"(\"\")"},
        {R"({"kind":"delay","delay":1})", R"(\"delay\" has no field \"delay\")"},
        {R"({"kind":"hang","status":500})", "status"},
        {R"({"kind":"close-at-accept","method":"getMe"})", "method"},
        {R"({"kind":"hang","":1})", R"(\"\")"},
    };
    for (const auto& [fault, named] : cases) {
        const Reply reply = client.post("/sandbox/fail", "application/json", fault);
        EXPECT_EQ(reply.status, 400) << fault;
        EXPECT_NE(reply.text.find(named), std::string::npos) << fault << reply.text;
    }
    EXPECT_EQ(client.call("getMe").status, 200) << "none of them was taken";
}

TEST_F(Faults, meetOnlyTheirMethod) {
    sandbox.failNext(Fault::fromJson({{"kind", "empty"}, {"method", "getChat"}, {"status", 500}}));
    EXPECT_EQ(client.call("getMe").status, 200);
    EXPECT_EQ(client.call("getChat").status, 500);
    EXPECT_EQ(client.call("getChat").status, 400);
}

TEST_F(Faults, refuseConnectionsWhileStopped) {
    EXPECT_EQ(client.call("getMe").status, 200);
    sandbox.stop();
    EXPECT_EQ(client.call("getMe").code, CURLE_COULDNT_CONNECT);
    sandbox.start();
    EXPECT_EQ(client.call("getMe").status, 200);
}

TEST(Sandbox, servesTlsToWhoTrustsIt) {
    const Sandbox sandbox{{.tls = true}};
    Client client{sandbox, "1:unknown"};
    const std::string body(3'000'000, 'x');
    EXPECT_EQ(client.upload("sendDocument", {}, "document", body).status, 401);
    EXPECT_EQ(client.call("getMe").status, 401);
    EXPECT_EQ(sandbox.requests()[1].connection, 1);
}

TEST(Sandbox, keepsUsageEvents) {
    Sandbox sandbox;
    Client client{sandbox};
    sandbox.setEventsStatus(503);
    EXPECT_EQ(client.post("/api/app/events", "application/json", "{\"events\":[]}").status, 503);
    EXPECT_EQ(sandbox.events().at(0).body, "{\"events\":[]}");
}

} // namespace quillon::sandbox
