#pragma once

#include "base/Json.h"

#include <QUuid>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

/// Reading the program's own files, all or nothing: a decoder takes what it needs from a JSON value
/// with the functions below, and the first value that is not as it must be ends the decoding.
namespace quillon {

/// Thrown by the functions below, caught by `decoded`.
struct Undecodable {};

/// What the decoder, a function of a JSON value, makes of the bytes; none when they are no JSON or
/// the decoder met something that it cannot use.
template <typename Decoder>
[[nodiscard]] auto decoded(std::string_view bytes, Decoder decode)
    -> std::optional<decltype(decode(std::declval<const Json&>()))> {
    const std::optional<Json> value = parseJson(bytes);
    if (!value) return std::nullopt;
    try {
        return decode(*value);
    } catch (const Undecodable&) {
        return std::nullopt;
    }
}

/// The value as std::string, bool, double (any number) or std::int64_t (a number written without
/// fraction or exponent).
template <typename T>
[[nodiscard]] T decodedAs(const Json& value) {
    if constexpr (std::is_same_v<T, std::int64_t>) {
        if (const auto integer = asInteger(value)) return *integer;
    } else if constexpr (std::is_same_v<T, double>) {
        if (value.is_number()) return value.get<double>();
    } else if (const auto* stored = value.get_ptr<const T*>()) {
        return *stored;
    }
    throw Undecodable{};
}

/// The value as a UUID in its 36-character form, in either case.
[[nodiscard]] inline QUuid decodedUuid(const Json& value) {
    const QString text = QString::fromStdString(decodedAs<std::string>(value));
    const QUuid id = QUuid::fromString(text);
    const bool standardForm =
        text.compare(id.toString(QUuid::WithoutBraces), Qt::CaseInsensitive) == 0;
    if (!standardForm) throw Undecodable{};
    return id;
}

/// The object's value under the key; null when it is missing or JSON null.
[[nodiscard]] inline const Json* presentMember(const Json& object, std::string_view key) {
    const Json* value = member(object, key);
    return value && !value->is_null() ? value : nullptr;
}
/// The object's value under the key, which must be there.
[[nodiscard]] inline const Json& requiredMember(const Json& object, std::string_view key) {
    const Json* value = presentMember(object, key);
    if (!value) throw Undecodable{};
    return *value;
}

template <typename T>
[[nodiscard]] std::optional<T> optionalField(const Json& object, std::string_view key) {
    const Json* value = presentMember(object, key);
    return value ? std::optional{decodedAs<T>(*value)} : std::nullopt;
}

template <typename T>
[[nodiscard]] T requiredField(const Json& object, std::string_view key) {
    return decodedAs<T>(requiredMember(object, key));
}

/// The elements of a JSON array, each through the decoder.
template <typename Decoder>
[[nodiscard]] auto decodedList(const Json& array, Decoder decode) {
    if (!array.is_array()) throw Undecodable{};
    std::vector<decltype(decode(array))> list;
    list.reserve(array.size());
    for (const Json& element : array)
        list.push_back(decode(element));
    return list;
}

} // namespace quillon
