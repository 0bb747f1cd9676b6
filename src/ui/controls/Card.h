#pragma once

#include "ui/accessibility/View.h"

#include <string>

class QVBoxLayout;

namespace quillon {

class IconLabel;

/// A titled box: the title with its symbol, and whatever is put into its body.
class Card : public View {
    Q_OBJECT

public:
    Card(const QString& title, const std::string& symbol, QWidget* parent = nullptr);

    /// Where the content goes, from top to bottom.
    [[nodiscard]] QVBoxLayout* body() const { return body_; }

    [[nodiscard]] QAccessible::Role accessibleRole() const override;
    [[nodiscard]] QString accessibleText() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    IconLabel* title_;
    QVBoxLayout* body_;
};

/// A thin line across, between sections.
class Divider : public View {
    Q_OBJECT

public:
    explicit Divider(QWidget* parent = nullptr);
    [[nodiscard]] QSize sizeHint() const override { return {1, 1}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillon
