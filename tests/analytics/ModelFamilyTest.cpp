#include "analytics/ModelFamily.h"

#include "platform/SystemInfo.h"

#include <gtest/gtest.h>

using namespace quillon;

TEST(ModelFamily, IsTheProductWithoutWhatTellsItsGeneration) {
    const struct {
        std::optional<QByteArray> product;
        std::string hardware;
        std::string family;
    } cases[]{
        {QByteArray{"Desk Pro (14-inch, 2023)\0", 25}, "Desk14,2", "DeskPro"},
        {"20XW 004BGE \n", "", "20XW004BGE"},
        {"\x01\xEF\xBB\xBFGerät\t2\xC2\x85", "", "Gerät\t2"},
        {"Desk(1) Pro(2)", "", "Desk"},
        {"Desk 3\xFF", "Desk14,2", "Desk"},
        {" (2023)", "Desk14,2", "Desk"},
        {"\n", "x86_64", "x"},
        {std::nullopt, "14,2", ""},
        {std::nullopt, "", ""},
    };
    for (const auto& [product, hardware, family] : cases) {
        const SystemInfo system{
            .version = {}, .locale = {}, .productName = product, .hardwareModel = hardware};
        EXPECT_EQ(modelFamily(system), family) << product.value_or("none").toStdString();
    }
}
