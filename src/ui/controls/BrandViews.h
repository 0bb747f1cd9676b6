#pragma once

#include "ui/accessibility/View.h"

namespace quillon {

/// A picture in a square that the text around it makes grow.
class SquareView : public View {
    Q_OBJECT

public:
    /// `size` in points of the design.
    SquareView(double size, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

private:
    double size_;
};

/// The application's icon.
class AppIconView : public SquareView {
    Q_OBJECT

public:
    explicit AppIconView(double size, QWidget* parent = nullptr) : SquareView{size, parent} {}

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The product's name as it is written everywhere.
class Wordmark : public View {
    Q_OBJECT

public:
    explicit Wordmark(double points, Tint ink = Ink::primary, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
    [[nodiscard]] QAccessible::Role accessibleRole() const override;
    [[nodiscard]] QString accessibleText() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QFont font() const;

    double points_;
    Tint ink_;
};

/// Telegram's paper plane on a disc. Decoration.
class TelegramIcon : public SquareView {
    Q_OBJECT

public:
    explicit TelegramIcon(double size, QWidget* parent = nullptr) : SquareView{size, parent} {}

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The symbol and the colour of Telegram's logo on a button or a label.
inline constexpr const char* telegramSymbol = "paperplane.circle.fill";
inline constexpr QColor telegramBlue{38, 165, 228};

/// Draws the application's icon into a square.
void paintAppIcon(QPainter& painter, const QRectF& frame);

} // namespace quillon
