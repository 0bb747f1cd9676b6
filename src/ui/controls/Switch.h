#pragma once

#include "ui/controls/PressedByReturn.h"
#include "ui/text/TextBlock.h"
#include "ui/theme/Animation.h"

#include <QCheckBox>

#include <string>

namespace quillon {

/// A row with a tile and a title at its leading end and a switch at the other. A click anywhere in
/// the row switches it, and so do Space, Return and the title's mnemonic. To assistive technology
/// it is a check box.
class Switch : public PressedByReturn<QCheckBox> {
    Q_OBJECT

public:
    Switch(const QString& title, std::string symbol, QColor color);

    /// Shows whether it is on, without emitting switched().
    void showOn(bool on);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

Q_SIGNALS:
    /// The user switched it, by whatever means. (Assistive technology does so without a click.)
    void switched(bool on);

protected:
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] bool hitButton(const QPoint& position) const override;
    void hideEvent(QHideEvent* event) override;

private:
    [[nodiscard]] TextBlock titleBlock() const;
    /// The width of all but the title.
    [[nodiscard]] double besideTitle() const;
    /// The size if the title is wrapped into at most this many points.
    [[nodiscard]] QSize hintFor(double mostTitle) const;
    void paintTitle(QPainter& painter) const;
    void paintTrack(QPainter& painter) const;

    std::string symbol_;
    QColor color_;
    Animation position_; // of the knob: 0 is off, 1 is on
    bool showing_ = false;
};

} // namespace quillon
