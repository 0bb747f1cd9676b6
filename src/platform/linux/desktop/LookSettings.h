#pragma once

#include "platform/Appearance.h"

#include <QString>
#include <QVariant>

#include <map>
#include <string>
#include <utility>

namespace quillon {

/// What the desktop's settings say about looks: a namespace and a key of the settings portal, or
/// the empty namespace and the name of a setting of XSETTINGS, with what was given for it.
class LookSettings {
public:
    using Key = std::pair<std::string, std::string>;

    /// Settings that say nothing about looks are passed over.
    void set(const Key& key, const QVariant& value);
    /// Values of another type than theirs, and those without a sense, count as not given.
    [[nodiscard]] DesktopLooks looks() const;

private:
    [[nodiscard]] QVariant value(const Key& key) const;
    [[nodiscard]] DesktopLooks::Scheme scheme() const;
    [[nodiscard]] std::optional<bool> animations() const;
    [[nodiscard]] double textScale() const;

    std::map<Key, QVariant> values_;
};

} // namespace quillon
