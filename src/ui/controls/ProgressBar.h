#pragma once

#include "ui/theme/Themed.h"

#include <QProgressBar>
#include <QVariantAnimation>

namespace quillon {

/// A thin bar that fills. Without an end in sight (a range from 0 to 0) a piece of it goes to and
/// fro, or stands where animations are off.
class ProgressBar : public Themed<QProgressBar> {
    Q_OBJECT

public:
    /// `name` is what assistive technology calls it.
    explicit ProgressBar(const QString& name, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    /// What is filled, from 0 to 1 along the writing direction.
    struct Part {
        double from;
        double to;
    };
    [[nodiscard]] Part filledPart() const;

    QVariantAnimation way_;
};

} // namespace quillon
