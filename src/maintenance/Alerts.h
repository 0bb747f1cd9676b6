#pragma once

#include <QFuture>

#include <string>
#include <vector>

namespace quillon {

/// A question or a message that everything else waits for.
struct Alert {
    bool warning = false;
    std::string message;
    std::string informativeText;
    /// The first is the default.
    std::vector<std::string> buttons;

    bool operator==(const Alert&) const = default;
};

/// Shows alerts to the user.
class Alerts {
public:
    virtual ~Alerts() = default;

    /// The position of the button that was pressed; that of the last one when the alert was closed
    /// without.
    [[nodiscard]] virtual QFuture<std::size_t> show(Alert alert) = 0;
};

} // namespace quillon
