#pragma once

#include <QByteArray>

#include <optional>
#include <string>

namespace quillon {

/// The machine's description of itself.
struct SystemInfo {
    /// Major, minor and patch number, as in "6.1.0".
    std::string version;
    /// The current locale's identifier, as in "de_AT".
    std::string locale;
    /// The product's name as the firmware stores it, control characters included; none when it
    /// stores none.
    std::optional<QByteArray> productName;
    /// A coarser name, for when there is no product name; may be empty.
    std::string hardwareModel;
};

} // namespace quillon
