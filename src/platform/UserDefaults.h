#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillon {

/// The program's preferences: small values by key, kept from one start to the next. A write is on
/// disk when it returns. If writing fails, the value still holds until the process ends.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;

    /// None when the key is absent.
    [[nodiscard]] virtual std::optional<std::string> text(std::string_view key) const = 0;
    virtual void setText(std::string_view key, std::string_view value) = 0;

    /// None when the key is absent or holds something else than a Boolean.
    [[nodiscard]] virtual std::optional<bool> flag(std::string_view key) const = 0;
    virtual void setFlag(std::string_view key, bool value) = 0;

    virtual void remove(std::string_view key) = 0;

    /// Removes every key, with the file that holds them.
    virtual void removeAll() = 0;
};

} // namespace quillon
