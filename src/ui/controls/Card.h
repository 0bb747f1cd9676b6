#pragma once

#include "ui/accessibility/View.h"

#include <string>

class QVBoxLayout;

namespace quillon {

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
    Card(const QString& title, const std::string& symbol);

    /// The layout that takes the content, from top to bottom.
    [[nodiscard]] QVBoxLayout* body() const { return body_; }

private:
    QVBoxLayout* body_;
};

/// A thin horizontal line between sections.
class Divider : public View {
    Q_OBJECT

public:
    Divider();
    [[nodiscard]] QSize sizeHint() const override { return {1, 1}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillon
