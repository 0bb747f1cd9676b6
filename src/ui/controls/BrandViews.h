#pragma once

#include "ui/controls/SquareView.h"

namespace quillon {

/// The application's icon.
class AppIconView : public SquareView {
    Q_OBJECT

public:
    using SquareView::SquareView;

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The product's name in its lettering.
class Wordmark : public View {
    Q_OBJECT

public:
    explicit Wordmark(double points, Tint ink = Ink::primary);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

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
    using SquareView::SquareView;

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The symbol and the colour of Telegram's logo on buttons and labels.
inline constexpr const char* telegramSymbol = "paperplane.circle.fill";
inline constexpr QColor telegramBlue{38, 165, 228};

/// Paints the application's icon, as large as fits into the frame.
void paintAppIcon(QPainter& painter, const QRectF& frame);

} // namespace quillon
