#include "SandboxClient.h"

#include <gtest/gtest.h>

namespace quillon::sandbox {

namespace {

class Faults : public testing::Test {
protected:
    Faults() { sandbox.addBot(Sandbox::demoToken); }

    Reply order(const Json& fault) {
        return client.post("/sandbox/fail", "application/json", dumped(fault));
    }

    Sandbox sandbox;
    Client client{sandbox};
};

} // namespace

TEST_F(Faults, meetTheNextCallAsTheyAreOrdered) {
    const std::vector<std::pair<Json, std::pair<int, std::string>>> cases{
        {{{"kind", "cut-after-body"}}, {0, ""}},
        {{{"kind", "cut-reply"}}, {0, ""}},
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
        EXPECT_EQ(order(fault).status, 200);
        const Reply reply = client.call("getMe");
        EXPECT_EQ(reply.status, expected.first) << fault;
        EXPECT_TRUE(reply.text.starts_with(expected.second)) << fault << reply.text;
        EXPECT_EQ(client.call("getMe").result()["is_bot"], true) << "only one call is met";
    }
}

TEST_F(Faults, areRefusedByNameWhereUnknown) {
    const std::vector<std::pair<Json, std::string>> cases{
        {{{"kind", "hangs"}}, "hangs"},
        {{{"count", 2}}, R"(\"\")"},
        {{{"kind", "delay"}, {"delay", 1}}, R"(\"delay\" has no field \"delay\")"},
        {{{"kind", "hang"}, {"status", 500}}, "status"},
        {{{"kind", "close-at-accept"}, {"method", "getMe"}}, "method"},
        {{{"kind", "hang"}, {"", 1}}, R"(\"\")"},
    };
    for (const auto& [fault, named] : cases) {
        const Reply reply = order(fault);
        EXPECT_EQ(reply.status, 400) << fault;
        EXPECT_NE(reply.text.find(named), std::string::npos) << fault << reply.text;
    }
    EXPECT_EQ(client.call("getMe").status, 200) << "none of them was taken";
}

} // namespace quillon::sandbox
