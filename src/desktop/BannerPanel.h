#pragma once

#include <memory>

namespace quillon {

class Compositor;
class HUDView;
class Workspace;
struct BannerMessage;

/// What the banner's pictures are shown in. It lies over everything, never becomes active, lets the
/// mouse through, and starts invisible, with an opacity of 0.
class BannerPanel {
public:
    virtual ~BannerPanel() = default;

    /// Replaces what is shown by the picture of this message, on the screen in use, and announces
    /// its text to assistive technology.
    virtual void setContent(const HUDView& view, const BannerMessage& message) = 0;
    /// Whether the present content can be anything between opaque and invisible.
    [[nodiscard]] virtual bool fades() const = 0;
    /// The opacity, from 0 to 1.
    virtual void setAlpha(double alpha) = 0;
    virtual void appear() = 0;
    virtual void vanish() = 0;
    /// False once the desktop shows nothing more of what this panel is given.
    [[nodiscard]] virtual bool works() const { return true; }
};

/// The panel for this desktop: a layer over its windows where it has one, else a window.
[[nodiscard]] std::unique_ptr<BannerPanel> makeBannerPanel(const Compositor& compositor,
                                                           const Workspace& workspace);

} // namespace quillon
