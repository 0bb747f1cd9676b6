#pragma once

#include "desktop/BannerPanel.h"

#include <QPixmap>
#include <QWidget>

namespace quillon {

/// The banner as a window. It lies over everything on every workspace, never becomes active and
/// lets the mouse through.
class HUDPanel : public QWidget, public BannerPanel {
    Q_OBJECT

public:
    HUDPanel(const Compositor& compositor, const Workspace& workspace);

    void setContent(const HUDView& view, const BannerMessage& message) override;
    [[nodiscard]] bool fades() const override { return blended_; }
    void setAlpha(double alpha) override;
    [[nodiscard]] double alpha() const { return alpha_; }
    void appear() override;
    void vanish() override { hide(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void announce(const QString& text);

    const Compositor& compositor_;
    const Workspace& workspace_;
    QPixmap picture_;
    double alpha_ = 0;
    bool blended_ = true;
};

} // namespace quillon
