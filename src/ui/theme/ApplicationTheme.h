#pragma once

#include "platform/Appearance.h"

#include <QFont>
#include <QPalette>

namespace quillon {

/// Applies the desktop's appearance to the QApplication: colours, font size, and whether things
/// move. Windows that are open change at once.
///
/// Some desktops' Qt integrations (KDE's, for example) and some styles bring colours of their own.
/// Those stay, and Qt keeps them up to date. Without such an integration Qt would always be light.
class ApplicationTheme {
public:
    /// Takes the application's present colours and font for those that Qt provides.
    ApplicationTheme();

    /// Follows the desktop. `this` must outlive `source`, which nobody else may follow.
    void follow(AppearanceSource& source);

private:
    void apply(const Appearance& appearance);
    void applyScheme(Appearance::Scheme scheme) const;
    void applyTextScale(double scale);

    bool coloursAreOurs_;
    QFont font_;
    double textScale_ = 1;
};

/// The colours of windows where the desktop provides none.
[[nodiscard]] QPalette lightPalette();
[[nodiscard]] QPalette darkPalette();

} // namespace quillon
