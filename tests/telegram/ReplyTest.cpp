#include "telegram/Reply.h"

#include <gtest/gtest.h>

using namespace quillon;

namespace {

/// A verdict as one comparable text.
std::string told(const Verdict& verdict) {
    if (const auto* success = std::get_if<Success>(&verdict)) return "= " + success->result.dump();
    if (const auto* wait = std::get_if<Wait>(&verdict))
        return "wait " + std::to_string(wait->duration.count());
    return std::get<Refusal>(verdict).message;
}

constexpr const char* badToken = "Telegram didn't accept that bot token.";

} // namespace

TEST(Reply, MeansWhatItsEnvelopeSays) {
    const std::tuple<int, const char*, std::string> cases[]{
        {200, R"({"ok":true,"result":true})", "= true"},
        {200, R"({"ok":true})", "= null"},
        {200, R"({"ok":1,"result":1})", "Telegram said no."},
        {400, R"({"ok":false,"error_code":400,"description":"Bad Request: chat “x” not found"})",
         "Bad Request: chat “x” not found"},
        {400, R"({"ok":false,"description":7})", "Telegram said no."},
        {200, R"({"ok":false,"error_code":401,"description":"Unauthorized"})", badToken},
        {401, R"({"ok":false,"error_code":400,"description":"other"})", "other"},
        {200, R"({"ok":false,"error_code":401.0,"description":"other"})", "other"},
        {429,
         R"({"ok":false,"error_code":429,"description":"slow","parameters":{"retry_after":3}})",
         "wait 4"},
        {429, R"({"ok":false,"error_code":401,"parameters":{"retry_after":0}})", "wait 1"},
        {429, R"({"ok":false,"description":"slow","parameters":{"retry_after":59}})", "wait 60"},
        {429, R"({"ok":false,"description":"slow","parameters":{"retry_after":60}})", "slow"},
        {429, R"({"ok":false,"description":"slow","parameters":{"retry_after":-1}})", "wait 0"},
        {429, R"({"ok":false,"description":"slow","parameters":{"retry_after":-2}})", "slow"},
        {429, R"({"ok":false,"description":"slow","parameters":{"retry_after":"3"}})", "slow"},
        {502, "<html>Bad Gateway</html>",
         "Telegram sent an empty reply (error 502). Try again in a moment."},
        {200, "[]", "Telegram sent an empty reply (error 200). Try again in a moment."},
        {404, "", badToken},
    };
    for (const auto& [status, body, verdict] : cases)
        EXPECT_EQ(told(judge({.status = status, .body = body})), verdict) << body;
}
