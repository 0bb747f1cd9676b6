#include "platform/linux/DesktopEntries.h"

#include "platform/linux/DesktopEntry.h"
#include "platform/linux/LinuxBundle.h"
#include "platform/linux/PosixFileSystem.h"

#include <string>
#include <system_error>

namespace quillon {

namespace {

using std::filesystem::path;

/// The icon below an application folder.
constexpr const char* bundleIcon = "Contents/Resources/dev.vostrel.quillon.svg";

path entryFile(const Folders& folders) {
    return folders.data / "applications" / desktopEntryName;
}

std::string iconOf(const path& application) {
    std::error_code ignored;
    const path icon = application / bundleIcon;
    // Where a package has installed the icon, it goes by the application's name.
    return std::filesystem::exists(icon, ignored) ? icon.native() : applicationIdentifier;
}

} // namespace

void writeApplicationEntry(const Folders& folders, const path& application) {
    const auto program = DesktopEntry::program(application / bundleProgram);
    const path file = entryFile(folders);
    if (!program || !PosixFileSystem{}.createFolder(file.parent_path())) return;
    const std::string text = "[Desktop Entry]\n"
                             "Type=Application\n"
                             "Name=Quillon\n"
                             "GenericName=Clipboard Sender\n"
                             "Comment=Send what you copy to your phone\n"
                             "Exec=" +
                             program->exec +
                             "\n"
                             "TryExec=" +
                             program->tryExec +
                             "\n"
                             "Icon=" +
                             DesktopEntry::stringValue(iconOf(application)) +
                             "\n"
                             "Categories=Utility;\n"
                             "Keywords=clipboard;phone;Telegram;send;\n"
                             "Terminal=false\n"
                             "StartupNotify=false\n";
    PosixFileSystem{}.writeAtomically(file, QByteArray::fromStdString(text));
}

void removeApplicationEntry(const Folders& folders) {
    std::error_code ignored;
    std::filesystem::remove(entryFile(folders), ignored);
}

} // namespace quillon
