#pragma once

#include "ui/theme/Animation.h"
#include "ui/theme/Themed.h"

#include <QProgressBar>

namespace quillon {

/// A thin bar that fills. With a range from 0 to 0, for work without an end in sight, a piece of it
/// goes to and fro, or stands still if the user wants no animations.
class ProgressBar : public Themed<QProgressBar> {
    Q_OBJECT

public:
    /// `name` is its accessible name.
    explicit ProgressBar(const QString& name);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    /// The part that is filled, from 0 to 1 in the direction of writing.
    struct Part {
        double from;
        double to;
    };
    [[nodiscard]] Part filledPart() const;

    Animation way_; // from 0 to 1 for each time to and fro
};

} // namespace quillon
