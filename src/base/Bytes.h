#pragma once

#include <QByteArray>

#include <string_view>

namespace quillon {

/// The bytes as text, which must not outlive them.
[[nodiscard]] inline std::string_view asText(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

} // namespace quillon
