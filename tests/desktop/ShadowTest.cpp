#include "desktop/Shadow.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

struct Picture {
    QSize size{120, 60};
    QRectF capsule{20, 20, 80, 20};
    Shadow shadow{.opacity = 0.3, .blur = 10, .offset = {0, 4}};
    double devicePixelRatio = 1;

    [[nodiscard]] QImage image() const {
        return capsuleShadow(size, capsule, shadow, devicePixelRatio).toImage();
    }
};

TEST(CapsuleShadow, IsAnotherPictureForEachThingThatItDependsOn) {
    const std::pair<const char*, Picture> cases[]{
        {"wider picture", {.size = {130, 60}}},
        {"higher picture", {.size = {120, 70}}},
        {"capsule further along", {.capsule = {30, 20, 80, 20}}},
        {"capsule further down", {.capsule = {20, 22, 80, 20}}},
        {"wider capsule", {.capsule = {20, 20, 84, 20}}},
        {"higher capsule", {.capsule = {20, 20, 80, 24}}},
        {"opacity", {.shadow = {.opacity = 0.6, .blur = 10, .offset = {0, 4}}}},
        {"blur", {.shadow = {.opacity = 0.3, .blur = 16, .offset = {0, 4}}}},
        {"offset across", {.shadow = {.opacity = 0.3, .blur = 10, .offset = {4, 4}}}},
        {"offset down", {.shadow = {.opacity = 0.3, .blur = 10, .offset = {0, 8}}}},
        {"scale", {.devicePixelRatio = 2}},
    };
    const QImage usual = Picture{}.image();
    for (const auto& [name, picture] : cases)
        EXPECT_TRUE(picture.image() != usual) << name;
    EXPECT_TRUE(Picture{}.image() == usual);
}

} // namespace
} // namespace quillon::test
