#include "platform/linux/desktop/AppearanceSettings.h"

#include <QMetaType>

#include <algorithm>
#include <array>
#include <cmath>

namespace quillon {

namespace {

using Scheme = Appearance::Scheme;

/// The layouts hold for texts up to this size.
constexpr double largestTextScale = 1.5;

// Common to all desktops: the settings that the portal's documentation defines itself.
const AppearanceSettings::Key colorScheme{"org.freedesktop.appearance", "color-scheme"};
const AppearanceSettings::Key reducedMotion{"org.freedesktop.appearance", "reduced-motion"};
// GNOME's, which the portal of GTK serves as well.
const AppearanceSettings::Key gnomeAnimations{"org.gnome.desktop.interface", "enable-animations"};
const AppearanceSettings::Key gnomeTextScale{"org.gnome.desktop.interface", "text-scaling-factor"};
// KDE's: how long its animations take, of the usual time.
const AppearanceSettings::Key kdeAnimations{"org.kde.kdeglobals.KDE", "AnimationDurationFactor"};
// XSETTINGS, from the desktops that have no portal.
const AppearanceSettings::Key themeName{"", "Net/ThemeName"};
const AppearanceSettings::Key gtkAnimations{"", "Gtk/EnableAnimations"};

const std::array keys{&colorScheme,   &reducedMotion, &gnomeAnimations, &gnomeTextScale,
                      &kdeAnimations, &themeName,     &gtkAnimations};

/// The number that a variant of any type of number is.
std::optional<double> number(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Double:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return value.toDouble();
    default:
        return std::nullopt;
    }
}

std::optional<bool> flag(const QVariant& value) {
    if (value.typeId() == QMetaType::Bool) return value.toBool();
    return std::nullopt;
}

} // namespace

void AppearanceSettings::set(const Key& key, const QVariant& value) {
    const bool known = std::ranges::any_of(keys, [&](const Key* each) { return *each == key; });
    if (known) values_[key] = value;
}

Appearance AppearanceSettings::appearance() const {
    return {.scheme = scheme(), .animations = animations(), .textScale = textScale()};
}

QVariant AppearanceSettings::value(const Key& key) const {
    const auto found = values_.find(key);
    return found == values_.end() ? QVariant{} : found->second;
}

/// The portal's 1 is dark and 2 is light; its 0, and what it may mean one day, leave it to the
/// theme, which by custom has "dark" at the end of its name if it is.
Scheme AppearanceSettings::scheme() const {
    const auto preference = number(value(colorScheme));
    if (preference == 1) return Scheme::dark;
    if (preference == 2) return Scheme::light;
    const QVariant theme = value(themeName);
    if (theme.typeId() != QMetaType::QString) return Scheme::noPreference;
    return theme.toString().endsWith(QLatin1String{"-dark"}, Qt::CaseInsensitive)
               ? Scheme::dark
               : Scheme::noPreference;
}

/// Whoever says that nothing is to move has the last word.
std::optional<bool> AppearanceSettings::animations() const {
    std::optional<bool> kde;
    // A number, or the text that its file has.
    const QVariant written = value(kdeAnimations);
    bool readable = false;
    const double factor = written.toString().toDouble(&readable);
    if (readable && std::isfinite(factor)) kde = factor > 0;

    const auto reduced = number(value(reducedMotion));
    const auto gtk = number(value(gtkAnimations));
    const std::array answers{reduced ? std::optional{*reduced != 1} : std::nullopt,
                             flag(value(gnomeAnimations)), kde,
                             gtk ? std::optional{*gtk != 0} : std::nullopt};
    if (std::ranges::count(answers, std::optional{false})) return false;
    if (std::ranges::count(answers, std::optional{true})) return true;
    return std::nullopt;
}

double AppearanceSettings::textScale() const {
    const double scale = number(value(gnomeTextScale)).value_or(1);
    return std::isfinite(scale) ? std::clamp(scale, 1.0, largestTextScale) : 1;
}

} // namespace quillon
