#pragma once

#include "platform/Appearance.h"

#include <QVariant>

#include <map>
#include <string>
#include <utility>

namespace quillon {

/// The desktop's settings that make up its appearance. A setting's key is a namespace and a key of
/// the settings portal, or the empty namespace and the name of an XSETTINGS setting.
class AppearanceSettings {
public:
    using Key = std::pair<std::string, std::string>;

    /// Ignores settings that say nothing about the appearance.
    void set(const Key& key, const QVariant& value);
    /// A value of the wrong type or without a meaning counts as not set.
    [[nodiscard]] Appearance appearance() const;

private:
    [[nodiscard]] QVariant value(const Key& key) const;
    [[nodiscard]] Appearance::Scheme scheme() const;
    [[nodiscard]] std::optional<bool> animations() const;
    [[nodiscard]] double textScale() const;

    std::map<Key, QVariant> values_;
};

} // namespace quillon
