#include "base/JsonDecoding.h"

namespace quillon {

template <>
std::string decodedAs(const Json& value) {
    if (!value.is_string()) throw Undecodable{};
    return value.get<std::string>();
}

template <>
bool decodedAs(const Json& value) {
    if (!value.is_boolean()) throw Undecodable{};
    return value.get<bool>();
}

template <>
double decodedAs(const Json& value) {
    if (!value.is_number()) throw Undecodable{};
    return value.get<double>();
}

template <>
std::int64_t decodedAs(const Json& value) {
    const auto integer = asInteger(value);
    if (!integer) throw Undecodable{};
    return *integer;
}

const Json* presentMember(const Json& object, std::string_view key) {
    const Json* value = member(object, key);
    return value && !value->is_null() ? value : nullptr;
}

const Json& requiredMember(const Json& object, std::string_view key) {
    const Json* value = presentMember(object, key);
    if (!value) throw Undecodable{};
    return *value;
}

} // namespace quillon
