#pragma once

#include "ui/accessibility/View.h"
#include "ui/text/StyledText.h"

#include <string>

namespace quillon {

class IconLabel;

/// One line of the instructions for the group: a symbol in a badge, and a text.
class GroupStep : public View {
    Q_OBJECT

public:
    GroupStep(const std::string& symbol, const StyledText& text, QWidget* parent = nullptr);

    [[nodiscard]] QAccessible::Role accessibleRole() const override;
    [[nodiscard]] QString accessibleText() const override;
    [[nodiscard]] bool accessibleWhole() const override { return true; }

private:
    IconLabel* label_;
};

} // namespace quillon
