#pragma once

#include <nlohmann/json.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillon {

/// JSON whose objects keep their keys in the order written.
using Json = nlohmann::ordered_json;

/// None of our files and no reply of the Bot API is nested deeper; refusing more bounds memory.
inline constexpr int maximumJsonDepth = 128;

/// None of our objects has more keys. Finding a key takes linear time, building an object quadratic
/// time.
inline constexpr std::size_t maximumJsonKeys = 1000;

/// The value, or none when the bytes are not one JSON text in UTF-8, are nested too deeply, or hold
/// an object with too many keys.
[[nodiscard]] std::optional<Json> parseJson(std::string_view bytes);

/// Compact UTF-8. Invalid UTF-8 in a string is written as U+FFFD.
[[nodiscard]] std::string writeJson(const Json& value);

// These read a member by key and type. They give none when `object` is no object, has no such key,
// or the value has another type.
[[nodiscard]] const Json* member(const Json& object, std::string_view key);
[[nodiscard]] const Json* objectMember(const Json& object, std::string_view key);
[[nodiscard]] std::optional<std::string> textMember(const Json& object, std::string_view key);
/// A number written without fraction or exponent that fits 64 bits with sign.
[[nodiscard]] std::optional<std::int64_t> integerMember(const Json& object, std::string_view key);
[[nodiscard]] bool isTrue(const Json& object, std::string_view key);

/// The value itself as such an integer.
[[nodiscard]] std::optional<std::int64_t> asInteger(const Json& value);

} // namespace quillon
