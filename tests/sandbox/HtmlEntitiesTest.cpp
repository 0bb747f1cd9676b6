#include "sandbox/HtmlEntities.h"

#include <gtest/gtest.h>

namespace quillon::sandbox {

TEST(HtmlEntities, giveTextAndStretches) {
    const std::tuple<std::string, std::string, std::vector<Entity>> cases[]{
        {"<pre>a &lt;b&gt; &amp;amp;</pre>", "a <b> &amp;", {{"pre", 0, 11, {}}}},
        {"&#128512;&#x41;&quot;&nbsp;&", "😀A\"&nbsp;&", {}},
        {"&lt no semicolon, &#0; &#55296; stay", "< no semicolon, &#0; &#55296; stay", {}},
        {"<b>x<i>y</i></b>z", "xyz", {{"bold", 0, 2, {}}, {"italic", 1, 2, {}}}},
        {"<pre>1<b>2</b>3</pre>", "123", {{"pre", 0, 3, {}}}},
    };
    for (const auto& [html, text, entities] : cases) {
        const FormattedText actual = parseHtml(html);
        EXPECT_EQ(actual.text, text) << html;
        EXPECT_EQ(actual.entities, entities) << html;
    }
}

TEST(HtmlEntities, refuseWithTheByteOffset) {
    const std::vector<std::pair<std::string, std::string>> cases{
        {"é<x>", "Unsupported start tag \"x\" at byte offset 2"},
        {"a<b", "Unclosed start tag at byte offset 1"},
        {"ab</b>", "Unexpected end tag at byte offset 2"},
        {"<b>x", "Can't find end tag corresponding to start tag \"b\""},
        {"<b>x</i>", R"(Unmatched end tag at byte offset 4, expected "</b>", found "</i>")"},
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

} // namespace quillon::sandbox
