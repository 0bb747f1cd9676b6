#include "platform/linux/desktop/XdgLoginItem.h"

#include "platform/linux/desktop/DesktopEntries.h"
#include "platform/linux/desktop/DesktopEntry.h"
#include "platform/linux/files/PosixFileSystem.h"

#include <QStandardPaths>

#include <cerrno>
#include <string>
#include <utility>

#include <unistd.h>

namespace quillon {

namespace {

using std::filesystem::path;

/// Our entries have 200 bytes; files larger than this are not read.
constexpr qint64 maximumEntrySize = 100'000;

/// Desktops of the GNOME family switch an entry off by this key.
constexpr const char* gnomeSwitch = "X-GNOME-Autostart-enabled";

std::optional<DesktopEntry> readEntry(const path& file) {
    const FileReading reading = PosixFileSystem{}.read(file, maximumEntrySize);
    if (reading.outcome != FileReading::Outcome::read) return std::nullopt;
    return DesktopEntry{reading.bytes.toStdString()};
}

bool write(const path& file, const DesktopEntry& entry) {
    return PosixFileSystem{}.writeAtomically(file, QByteArray::fromStdString(entry.text()));
}

bool isExecutable(const path& file) {
    std::error_code ignored;
    return std::filesystem::is_regular_file(file, ignored) && ::access(file.c_str(), X_OK) == 0;
}

/// Whether the entry's program exists, at its path or in one of the folders of $PATH.
bool findsProgram(const DesktopEntry& entry) {
    const auto program = DesktopEntry::programOf(entry.value("Exec").value_or(""));
    if (!program) return false;
    if (program->find('/') != std::string::npos)
        return path{*program}.is_absolute() && isExecutable(*program);
    return !QStandardPaths::findExecutable(QString::fromStdString(*program)).isEmpty();
}

void setProgram(DesktopEntry& entry, const DesktopEntry::Program& program) {
    entry.set("Exec", program.exec);
    if (entry.value("TryExec")) entry.set("TryExec", program.tryExec);
}

} // namespace

XdgLoginItem::XdgLoginItem(const Folders& folders, path executable)
    : file_{folders.config / "autostart" / desktopEntryName},
      executable_{std::move(executable)} {}

LoginItem::Status XdgLoginItem::status() const {
    const auto entry = readEntry(file_);
    if (!entry) return Status::notRegistered;
    if (entry->value("Hidden") == "true" || entry->value(gnomeSwitch) == "false")
        return Status::requiresApproval;
    return findsProgram(*entry) ? Status::enabled : Status::notFound;
}

bool XdgLoginItem::registerItem() {
    const auto program = DesktopEntry::program(executable_);
    if (!program || !PosixFileSystem{}.createFolder(file_.parent_path())) return false;
    auto entry = readEntry(file_);
    // An entry without a command holds nothing worth keeping, so it is written anew.
    if (!entry || !entry->value("Exec")) {
        entry = DesktopEntry{"[Desktop Entry]\nType=Application\nName=Quillon\n"
                             "Comment=Send what you copy to your phone\n"
                             "Exec=\nTryExec=\nIcon=dev.vostrel.quillon\nTerminal=false\n"};
    }
    setProgram(*entry, *program);
    entry->remove("Hidden");
    entry->remove(gnomeSwitch);
    return write(file_, *entry);
}

bool XdgLoginItem::unregisterItem() {
    return ::unlink(file_.c_str()) == 0 || errno == ENOENT || errno == ENOTDIR;
}

void XdgLoginItem::follow(const path& executable) {
    executable_ = executable;
    auto entry = readEntry(file_);
    const auto program = DesktopEntry::program(executable);
    if (!entry || !program) return;
    const std::string before = entry->text();
    setProgram(*entry, *program);
    if (entry->text() != before) write(file_, *entry);
}

void XdgLoginItem::followIfLost(const path& executable) {
    const auto entry = readEntry(file_);
    if (entry && !findsProgram(*entry)) follow(executable);
}

} // namespace quillon
