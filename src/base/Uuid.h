#pragma once

#include <QUuid>

#include <string>

namespace quillon {

/// The standard text form in upper case: 8-4-4-4-12 hexadecimal digits with hyphens.
[[nodiscard]] inline std::string uuidText(const QUuid& id) {
    return id.toString(QUuid::WithoutBraces).toUpper().toStdString();
}

} // namespace quillon
