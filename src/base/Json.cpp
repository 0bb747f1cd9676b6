#include "base/Json.h"

#include <limits>
#include <vector>

namespace quillon {

namespace {

struct Refused {};

/// Watches a text while it is read, and refuses one that would cost too much.
class Guard {
public:
    bool operator()(int depth, Json::parse_event_t event, const Json& /*parsed*/) {
        const auto level = static_cast<std::size_t>(depth);
        using Event = Json::parse_event_t;
        if (event == Event::array_start || event == Event::object_start) {
            if (depth > maximumJsonDepth) throw Refused{};
            // The parser reports this container's keys with a depth one greater than its own.
            keys_.resize(level + 2);
            keys_[level + 1] = 0;
        }
        if (event == Event::key && ++keys_.at(level) > maximumJsonKeys) throw Refused{};
        return true;
    }

private:
    std::vector<std::size_t> keys_;
};

} // namespace

std::optional<Json> parseJson(std::string_view bytes) {
    try {
        return Json::parse(bytes, Guard{});
    } catch (const Json::exception&) {
        return std::nullopt;
    } catch (Refused) {
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
