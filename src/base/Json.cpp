#include "base/Json.h"

#include <limits>

namespace quillon {

namespace {

struct TooDeep {};

} // namespace

std::optional<Json> parseJson(std::string_view bytes) {
    const auto refuseDepth = [](int depth, Json::parse_event_t event, const Json&) {
        if (event == Json::parse_event_t::array_start ||
            event == Json::parse_event_t::object_start) {
            if (depth > maximumJsonDepth) throw TooDeep{};
        }
        return true;
    };
    try {
        return Json::parse(bytes, refuseDepth);
    } catch (const Json::exception&) {
        return std::nullopt;
    } catch (TooDeep) {
        return std::nullopt;
    }
}

std::string writeJson(const Json& value) {
    return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

const Json* member(const Json& object, std::string_view key) {
    if (!object.is_object()) return nullptr;
    const auto found = object.find(key);
    return found == object.end() ? nullptr : &*found;
}

const Json* objectMember(const Json& object, std::string_view key) {
    const Json* value = member(object, key);
    return value != nullptr && value->is_object() ? value : nullptr;
}

std::optional<std::string> textMember(const Json& object, std::string_view key) {
    const Json* value = member(object, key);
    if (value == nullptr || !value->is_string()) return std::nullopt;
    return value->get<std::string>();
}

std::optional<std::int64_t> integerMember(const Json& object, std::string_view key) {
    const Json* value = member(object, key);
    return value == nullptr ? std::nullopt : asInteger(*value);
}

bool isTrue(const Json& object, std::string_view key) {
    const Json* value = member(object, key);
    return value != nullptr && value->is_boolean() && value->get<bool>();
}

std::optional<std::int64_t> asInteger(const Json& value) {
    if (!value.is_number_integer()) return std::nullopt;
    constexpr auto largest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    if (value.is_number_unsigned() && value.get<std::uint64_t>() > largest) return std::nullopt;
    return value.get<std::int64_t>();
}

} // namespace quillon
