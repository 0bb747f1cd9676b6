#include "base/Translate.h"

#include <gtest/gtest.h>

namespace quillon::test {

namespace {

TEST(Translate, FillsPlacesOnceWhateverTheValuesHold) {
    struct Case {
        const char* text;
        std::initializer_list<std::string_view> values;
        const char* result;
    };
    const Case cases[]{
        {"Couldn't read %1", {"100%2 sure.txt"}, "Couldn't read 100%2 sure.txt"},
        {"%2 of %1, %1", {"%2", "b"}, "b of %2, %2"},
        {"50 % of %1, %3 %", {"x", "y"}, "50 % of x, %3 %"},
        {"no place", {"x"}, "no place"},
    };
    for (const Case& each : cases)
        EXPECT_EQ(filled(each.text, each.values), each.result);
}

} // namespace

} // namespace quillon::test
