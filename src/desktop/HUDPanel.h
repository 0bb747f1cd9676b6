#pragma once

#include <QPixmap>
#include <QWidget>

namespace quillon {

class HUDView;

/// The banner's window. It lies over everything on every workspace, never becomes active and lets
/// the mouse through.
class HUDPanel : public QWidget {
    Q_OBJECT

public:
    HUDPanel();

    /// Replaces what the window shows, and announces `text` to assistive technology.
    void setContent(const HUDView& view, const QString& text, double devicePixelRatio,
                    bool blended);

    /// The opacity of what it shows, from 0 to 1.
    void setAlpha(double alpha);
    [[nodiscard]] double alpha() const { return alpha_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap picture_;
    double alpha_ = 0;
};

} // namespace quillon
