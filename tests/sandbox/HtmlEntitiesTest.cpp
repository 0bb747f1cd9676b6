#include "sandbox/HtmlEntities.h"

#include <gtest/gtest.h>

namespace quillon::sandbox {

TEST(HtmlEntities, giveTextAndStretches) {
    struct Case {
        std::string html;
        std::string text;
        std::vector<Entity> entities;
    };
    const std::vector<Case> cases{
        {"<pre>a &lt;b&gt; &amp;amp;</pre>", "a <b> &amp;", {{"pre", 0, 11, {}}}},
        {"&#128512;&#x41;&quot;&nbsp;&", "😀A\"&nbsp;&", {}},
        {"&lt no semicolon, &#0; &#55296; stay", "< no semicolon, &#0; &#55296; stay", {}},
        {"<b>x<i>y</i></b>z", "xyz", {{"bold", 0, 2, {}}, {"italic", 1, 2, {}}}},
        {"<B>x</b ><u></u>", "x", {{"bold", 0, 1, {}}}},
        {"<pre><code class=\"language-c++\">x</code></pre>", "x", {{"pre", 0, 1, "c++"}}},
        {"<pre>1<b>2</b>3</pre>", "123", {{"pre", 0, 3, {}}}},
        {"<a href='https://x.org/?a=1&amp;b=2'>é</a>",
         "é",
         {{"text_link", 0, 2, "https://x.org/?a=1&b=2"}}},
        {"<span class=\"tg-spoiler\">a</span><tg-spoiler>b</tg-spoiler>",
         "ab",
         {{"spoiler", 0, 1, {}}, {"spoiler", 1, 2, {}}}},
        {"<blockquote expandable>q</blockquote>", "q", {{"expandable_blockquote", 0, 1, {}}}},
    };
    for (const Case& expected : cases) {
        const FormattedText actual = parseHtml(expected.html);
        EXPECT_EQ(actual.text, expected.text) << expected.html;
        EXPECT_EQ(actual.entities, expected.entities) << expected.html;
    }
}

TEST(HtmlEntities, refuseWithTheByteOffset) {
    const std::vector<std::pair<std::string, std::string>> cases{
        {"é<x>", "Unsupported start tag \"x\" at byte offset 2"},
        {"1 < 2 > 0", "Unsupported start tag \"\" at byte offset 2"},
        {"a<b", "Unclosed start tag at byte offset 1"},
        {"<a href=\"x", "Unclosed start tag at byte offset 0"},
        {"ab</b>", "Unexpected end tag at byte offset 2"},
        {"<b>x", "Can't find end tag corresponding to start tag \"b\""},
        {"<b>x</i>", R"(Unmatched end tag at byte offset 4, expected "</b>", found "</i>")"},
        {"<b>x</b", "Unclosed end tag at byte offset 4"},
        {"<span class=\"x\">a</span>",
         R"(Tag "span" must have class "tg-spoiler" at byte offset 0)"},
        {"<b x>y</b>", "Expected equal sign in declaration of an attribute of the tag \"b\" at "
                       "byte offset 0"},
    };
    for (const auto& [html, message] : cases) {
        try {
            parseHtml(html);
            ADD_FAILURE() << html << " was accepted";
        } catch (const EntityError& error) {
            EXPECT_EQ(error.what(), message) << html;
        }
    }
}

TEST(HtmlEntities, keepWhiteSpaceThatMarkupHolds) {
    const FormattedText pre = trimmed(parseHtml(" <pre>  x\n</pre>\n "));
    EXPECT_EQ(pre.text, "  x");
    EXPECT_EQ(pre.entities, (std::vector<Entity>{{"pre", 0, 3, {}}}));
    EXPECT_EQ(trimmed({"\n x \n", {}}).text, "x");
}

} // namespace quillon::sandbox
