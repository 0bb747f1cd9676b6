#include "platform/linux/desktop/DesktopEntries.h"

#include "platform/linux/desktop/DesktopEntry.h"
#include "platform/linux/desktop/LinuxBundle.h"
#include "platform/linux/files/PosixFileSystem.h"

#include <QFile>

#include <string>
#include <string_view>
#include <system_error>

// Static libraries drop resources that are not initialised. The macro must be outside of
// namespaces.
static void loadPackagedEntry() {
    Q_INIT_RESOURCE(entries);
}

namespace quillon {

namespace {

using std::filesystem::path;

/// The icon's path below an application folder.
constexpr const char* bundleIcon = "Contents/Resources/dev.vostrel.quillon.svg";

path entryFile(const Folders& folders) {
    return folders.data / "applications" / desktopEntryName;
}

std::string iconOf(const path& application) {
    std::error_code ignored;
    const path icon = application / bundleIcon;
    // Without a file in the folder, the name stands for the icon that a package has installed.
    return std::filesystem::exists(icon, ignored) ? icon.native() : applicationIdentifier;
}

/// The entry that packages install, which starts the program by its name.
std::string packagedEntry() {
    loadPackagedEntry();
    QFile file{QStringLiteral(":/entries/") + QLatin1String{desktopEntryName}};
    return file.open(QFile::ReadOnly) ? file.readAll().toStdString() : std::string{};
}

/// Puts another program into the commands of the entry and of its actions.
std::string withProgram(std::string text, const std::string& exec) {
    constexpr std::string_view byName = "\nExec=quillon";
    const std::string replacement = "\nExec=" + exec;
    for (std::size_t at = 0; (at = text.find(byName, at)) != std::string::npos;
         at += replacement.size())
        text.replace(at, byName.size(), replacement);
    return text;
}

} // namespace

void writeApplicationEntry(const Folders& folders, const path& application) {
    const auto program = DesktopEntry::program(application / bundleProgram);
    const path file = entryFile(folders);
    if (!program || !PosixFileSystem{}.createFolder(file.parent_path())) return;
    DesktopEntry entry{withProgram(packagedEntry(), program->exec)};
    entry.set("TryExec", program->tryExec);
    entry.set("Icon", DesktopEntry::stringValue(iconOf(application)));
    PosixFileSystem{}.writeAtomically(file, QByteArray::fromStdString(entry.text()));
}

void removeApplicationEntry(const Folders& folders) {
    std::error_code ignored;
    std::filesystem::remove(entryFile(folders), ignored);
}

} // namespace quillon
