#pragma once

#include "base/Json.h"

#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace quillon {

/// The value of an event's property: text, integer or Boolean, never what the user copied.
class Prop {
public:
    Prop(const char* text) : value_{std::string{text}} {}
    Prop(std::string text) : value_{std::move(text)} {}
    Prop(std::string_view text) : value_{std::string{text}} {}
    Prop(std::int64_t number) : value_{number} {}
    Prop(bool flag) : value_{flag} {}

    bool operator==(const Prop&) const = default;

    /// The bare JSON value.
    [[nodiscard]] Json toJson() const;
    /// Throws Undecodable for anything but a Boolean, a 64-bit integer or a text.
    [[nodiscard]] static Prop fromJson(const Json& value);

private:
    std::variant<std::string, std::int64_t, bool> value_;
};

/// By key, in the order they are written.
using Props = std::vector<std::pair<std::string, Prop>>;

/// One usage event.
struct Event {
    std::string name;
    /// Milliseconds since 1970-01-01 UTC.
    std::int64_t at = 0;
    Props props;

    bool operator==(const Event&) const = default;

    /// {"name": text, "at": integer, "props": object}
    [[nodiscard]] Json toJson() const;
    /// Throws Undecodable when a key is missing or has a value of another type.
    [[nodiscard]] static Event fromJson(const Json& object);
};

} // namespace quillon
