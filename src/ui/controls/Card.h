#pragma once

#include "ui/accessibility/View.h"

#include <string>

class QVBoxLayout;

namespace quillon {

class IconLabel;

/// The box with round corners that cards, rows and long texts stand on.
class CardGround : public View {
    Q_OBJECT

public:
    using View::View;

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A box with a title, a symbol before it, and a body below.
class Card : public CardGround {
    Q_OBJECT

public:
    Card(const QString& title, const std::string& symbol, QWidget* parent = nullptr);

    /// The layout that takes the content, from top to bottom.
    [[nodiscard]] QVBoxLayout* body() const { return body_; }

    [[nodiscard]] QAccessible::Role accessibleRole() const override;
    [[nodiscard]] QString accessibleText() const override;

private:
    IconLabel* title_;
    QVBoxLayout* body_;
};

/// A thin horizontal line between sections.
class Divider : public View {
    Q_OBJECT

public:
    explicit Divider(QWidget* parent = nullptr);
    [[nodiscard]] QSize sizeHint() const override { return {1, 1}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillon
