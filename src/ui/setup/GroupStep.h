#pragma once

#include "ui/views/View.h"

#include <string>

namespace quillon {

/// One line of the instructions for the group: a symbol in a badge, and a text with bold parts.
class GroupStep : public View {
    Q_OBJECT

public:
    GroupStep(const std::string& symbol, const QString& text, QWidget* parent = nullptr);
};

} // namespace quillon
