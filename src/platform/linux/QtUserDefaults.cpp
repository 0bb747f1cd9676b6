#include "platform/linux/QtUserDefaults.h"

#include <QFile>

namespace quillon {

namespace {

QString toKey(std::string_view key) {
    return QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size()));
}

} // namespace

QtUserDefaults::QtUserDefaults(const std::filesystem::path& file)
    : settings_{QFile::decodeName(file.c_str()), QSettings::IniFormat} {}

std::optional<std::string> QtUserDefaults::text(std::string_view key) const {
    const QVariant value = settings_.value(toKey(key));
    if (!value.isValid()) return std::nullopt;
    return value.toString().toStdString();
}

void QtUserDefaults::setText(std::string_view key, std::string_view value) {
    set(key, toKey(value));
}

std::optional<bool> QtUserDefaults::flag(std::string_view key) const {
    const auto stored = text(key);
    if (stored != "true" && stored != "false") return std::nullopt;
    return stored == "true";
}

void QtUserDefaults::setFlag(std::string_view key, bool value) {
    set(key, value);
}

void QtUserDefaults::remove(std::string_view key) {
    settings_.remove(toKey(key));
    settings_.sync();
}

void QtUserDefaults::removeAll() {
    settings_.clear();
    settings_.sync();
    QFile::remove(settings_.fileName());
}

void QtUserDefaults::set(std::string_view key, const QVariant& value) {
    settings_.setValue(toKey(key), value);
    settings_.sync();
}

} // namespace quillon
