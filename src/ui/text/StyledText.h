#pragma once

#include <QString>

#include <utility>
#include <vector>

namespace quillon {

/// A text of which some parts are bold. A QString becomes one that is shown as it is, whatever
/// stars are in it, and shortened() if it is longer than any text should be; only markedUp() makes
/// bold parts.
class StyledText {
public:
    struct Run {
        QString text;
        bool bold = false;

        bool operator==(const Run&) const = default;
    };

    StyledText() = default;
    StyledText(const QString& plain);
    explicit StyledText(std::vector<Run> runs) : runs_{std::move(runs)} {}

    /// The parts of the text in their order. None is empty.
    [[nodiscard]] const std::vector<Run>& runs() const { return runs_; }
    /// The whole text without its formats.
    [[nodiscard]] QString plain() const;
    [[nodiscard]] bool isEmpty() const { return runs_.empty(); }

    bool operator==(const StyledText&) const = default;

private:
    std::vector<Run> runs_;
};

/// A text of the program whose bold parts stand between pairs of two stars: "Tap **Save** twice". A
/// name from outside must not be put into such a text, since its stars would count as well.
[[nodiscard]] StyledText markedUp(const QString& text);

} // namespace quillon
