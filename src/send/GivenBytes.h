#pragma once

#include "state/SendItem.h"

#include <optional>
#include <string>

namespace quillon {

/// What is made of bytes that somebody gives to be sent.
struct GivenBytes {
    /// None where they cannot be sent.
    std::optional<SendItem> item;
    /// The sentence that says why.
    std::string problem{};
};

/// The bytes as a file where they have a name, as a picture where they are a PNG, and else as text,
/// if that is what they are. `source` names where they come from, in the user's language. Takes
/// time that grows with the bytes.
[[nodiscard]] GivenBytes givenBytes(QByteArray bytes, std::optional<std::string> name,
                                    const std::string& source);

} // namespace quillon
