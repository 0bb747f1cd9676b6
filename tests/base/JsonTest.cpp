#include "base/Json.h"

#include <gtest/gtest.h>

using namespace quillon;

TEST(Json, TellsIntegersFromOtherNumbers) {
    const Json object =
        *parseJson(R"({"largest":9223372036854775807,"smallest":-9223372036854775808,
        "tooLarge":9223372036854775808,"huge":1e30,"fraction":1.5,"zeroFraction":7.0,"flag":true,
        "text":"7"})");
    EXPECT_EQ(integerMember(object, "largest"), INT64_MAX);
    EXPECT_EQ(integerMember(object, "smallest"), INT64_MIN);
    for (const char* key :
         {"tooLarge", "huge", "fraction", "zeroFraction", "flag", "text", "none"}) {
        EXPECT_EQ(integerMember(object, key), std::nullopt) << key;
    }
}

TEST(Json, RefusesDeepNestingWithoutBuildingIt) {
    EXPECT_TRUE(parseJson(std::string(100, '[') + std::string(100, ']')));
    EXPECT_EQ(parseJson(std::string(10'000'000, '[')), std::nullopt);
    std::string objects;
    for (int depth = 0; depth < 100'000; ++depth)
        objects += "{\"a\":";
    EXPECT_EQ(parseJson(objects), std::nullopt);
}

TEST(Json, RefusesObjectsOfTooManyKeys) {
    const auto objectOf = [](int keys) {
        std::string object = "{";
        for (int key = 0; key < keys; ++key)
            object += (key > 0 ? ",\"" : "\"") + std::to_string(key) + R"(":{"a":[{}]})";
        return object + "}";
    };
    EXPECT_TRUE(parseJson("[" + objectOf(1000) + "," + objectOf(1000) + "]"));
    EXPECT_EQ(parseJson("[[" + objectOf(1001) + "]]"), std::nullopt);
    EXPECT_EQ(parseJson(objectOf(500'000)), std::nullopt);
}

TEST(Json, WritesTextsThatAreNoUtf8) {
    EXPECT_EQ(writeJson("a\xFF"), "\"a\uFFFD\"");
}
