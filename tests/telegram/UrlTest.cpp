#include "telegram/Url.h"

#include <gtest/gtest.h>

using namespace quillon;

TEST(Url, HoldsNothingThatWouldHaveToBeEscaped) {
    EXPECT_TRUE(isUrlText("https://api.example/bot123456:ABC-DEF_x~%2F/getMe"));
    for (const char* text : {"a b", "a\nb", "a\tb", "ä", "a\"b", "a<b", "a\\b", "a{b", "a^b", "a|b",
                             "a`b", "100%", "%4", "%zz"}) {
        EXPECT_FALSE(isUrlText(text)) << text;
    }
    EXPECT_FALSE(isUrlText(std::string_view{"a\0b", 3}));
}

TEST(Url, IsOfAServerOnlyWithASchemeAndAHost) {
    for (const char* good :
         {"http://127.0.0.1:81", "https://api.example", "https://[::1]/telegram"})
        EXPECT_TRUE(isServerAddress(good)) << good;
    for (const char* bad :
         {"localhost:8081", "api.example", "http://", "http:///bot", "ftp://a", "http://a:b:c",
          "http://a:99999", "http://a?b", "http://a#b", "http://a b"})
        EXPECT_FALSE(isServerAddress(bad)) << bad;
}
