#include "analytics/ModelFamily.h"

#include "base/Bytes.h"
#include "base/Text.h"
#include "platform/SystemInfo.h"

#include <algorithm>

namespace quillon {

namespace {

std::string familyOfProduct(std::string_view product) {
    if (validUtf8(product) != product) return {};
    const std::string_view name = trimmedControls(product);
    std::string family{name.substr(0, name.find('('))};
    std::erase(family, ' ');
    return family;
}

bool isLetter(char character) {
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

} // namespace

std::string modelFamily(const SystemInfo& system) {
    if (system.productName) {
        std::string family = familyOfProduct(asText(*system.productName));
        if (!family.empty()) return family;
    }
    const std::string& model = system.hardwareModel;
    return {model.begin(), std::ranges::find_if_not(model, isLetter)};
}

} // namespace quillon
