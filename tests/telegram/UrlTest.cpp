#include "telegram/Url.h"

#include <gtest/gtest.h>

using quillon::isUrlText;

TEST(Url, HoldsNothingThatWouldHaveToBeEscaped) {
    EXPECT_TRUE(isUrlText("https://api.example/bot123456:ABC-DEF_x~%2F/getMe"));
    for (const char* text : {"a b", "a\nb", "a\tb", "ä", "a\"b", "a<b", "a\\b", "a{b", "a^b", "a|b",
                             "a`b", "100%", "%4", "%zz"}) {
        EXPECT_FALSE(isUrlText(text)) << text;
    }
    EXPECT_FALSE(isUrlText(std::string_view{"a\0b", 3}));
}
