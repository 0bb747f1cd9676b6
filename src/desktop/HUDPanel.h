#pragma once

#include <QPixmap>
#include <QWidget>

namespace quillon {

class HUDView;

/// The banner's window: over everything on every workspace, never active, and nothing to the mouse.
class HUDPanel : public QWidget {
    Q_OBJECT

public:
    HUDPanel();

    /// Replaces what the window shows, and says it to assistive technology.
    void setContent(const HUDView& view, const QString& text, double devicePixelRatio,
                    bool blended);

    /// From 0, nothing to see, to 1.
    void setAlpha(double alpha);
    [[nodiscard]] double alpha() const { return alpha_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap picture_;
    double alpha_ = 0;
};

} // namespace quillon
