#pragma once

#include "platform/Appearance.h"

#include <QFont>

namespace quillon {

/// Gives the application the desktop's looks, for all windows at once and while they show: colours,
/// the size of its font, and whether things move.
///
/// Where Qt's own integration with the desktop provides colours (that of KDE does, and some styles
/// do), those stay; it then follows the desktop by itself. Without one, Qt would be light for ever.
class Looks {
public:
    /// Takes what the application has now for what Qt gives it.
    Looks();

    /// Follows the desktop; `appearance` is to be used by nobody else, and `this` must outlive it.
    void follow(Appearance& appearance);
    void apply(const DesktopLooks& looks);

private:
    void applyScheme(DesktopLooks::Scheme scheme) const;
    void applyTextScale(double scale);

    bool coloursAreOurs_;
    QFont font_;
    double textScale_ = 1;
};

} // namespace quillon
