#pragma once

#include "ui/text/TextBlock.h"
#include "ui/theme/Themed.h"

#include <QCheckBox>
#include <QVariantAnimation>

#include <string>

namespace quillon {

/// A switch at the trailing end of its row, with a tile and the title at the other end; all of the
/// row switches it, as do Space, Return and the title's mnemonic. To assistive technology it is a
/// check box.
class Switch : public Themed<QCheckBox> {
    Q_OBJECT

public:
    Switch(const QString& title, std::string symbol, QColor color, QWidget* parent = nullptr);

    /// Shows whether it is on, which is no switching.
    void showOn(bool on);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

Q_SIGNALS:
    /// The user switched it, with whatever; assistive technology does so without a click.
    void switched(bool on);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    [[nodiscard]] bool hitButton(const QPoint& position) const override;
    void hideEvent(QHideEvent* event) override;

private:
    void slide(bool on);
    [[nodiscard]] TextBlock titleBlock() const;
    /// The width of all that is not the title.
    [[nodiscard]] double besideTitle() const;
    /// The size with a title that is wrapped into this many points.
    [[nodiscard]] QSize hintFor(double mostTitle) const;
    void paintTitle(QPainter& painter) const;
    void paintTrack(QPainter& painter) const;

    std::string symbol_;
    QColor color_;
    QVariantAnimation slide_;
    double position_ = 0; // of the knob: 0 off, 1 on
    bool showing_ = false;
};

} // namespace quillon
