#include "platform/linux/QtUserDefaults.h"

#include "platform/linux/files/PosixFileSystem.h"

#include <QFile>

#include <system_error>

namespace quillon {

namespace {

namespace fs = std::filesystem;
using fs::path;

constexpr fs::perms ownersFile = fs::perms::owner_read | fs::perms::owner_write;

QString toKey(std::string_view key) {
    return QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size()));
}

/// The file for QSettings, which waits for ever to open a pipe: in the place of what is no file,
/// one that there cannot be, so that the preferences are in memory alone.
path usable(const path& file) {
    std::error_code ignored;
    const fs::file_type type = fs::status(file, ignored).type();
    const bool waits = type != fs::file_type::regular && type != fs::file_type::not_found;
    return waits ? file / "none" : file;
}

} // namespace

QtUserDefaults::QtUserDefaults(const path& file)
    : file_{usable(file)},
      settings_{QFile::decodeName(file_.c_str()), QSettings::IniFormat} {
    std::error_code ignored;
    fs::permissions(file_, ownersFile, ignored);
}

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
    // QSettings keeps the permissions of a file, and gives a new one those of the user's mask.
    std::error_code ignored;
    if (!fs::exists(file_, ignored)) {
        const PosixFileSystem files;
        files.createFolder(file_.parent_path());
        files.write(file_, {});
    }
    settings_.setValue(toKey(key), value);
    settings_.sync();
}

} // namespace quillon
