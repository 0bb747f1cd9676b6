#pragma once

#include "ui/accessibility/View.h"

namespace quillon {

/// A text on a capsule in a tint of a colour. Given less room than the text needs, it cuts the text
/// at the end.
class Chip : public View {
    Q_OBJECT

public:
    Chip(const QString& text, QColor color);
    void setChip(const QString& text, QColor color);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] QString accessibleText() const override { return text_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString text_;
    QColor color_;
};

} // namespace quillon
