#include "platform/linux/LinuxFolders.h"

#include "base/Environment.h"

#include <algorithm>

#include <pwd.h>
#include <unistd.h>

namespace quillon {

namespace {

using std::filesystem::path;

std::optional<path> folderFrom(const char* variable) {
    path folder = environment(variable).value_or("");
    if (!folder.is_absolute() || std::ranges::find(folder, "..") != folder.end())
        return std::nullopt;
    return folder;
}

path homeFolder() {
    if (auto home = folderFrom("HOME")) return *home;
    const passwd* user = ::getpwuid(::getuid());
    return user && user->pw_dir && *user->pw_dir == '/' ? user->pw_dir : "/";
}

} // namespace

Folders linuxFolders() {
    const path home = homeFolder();
    return {.home = home,
            .data = folderFrom("XDG_DATA_HOME").value_or(home / ".local/share"),
            .cache = folderFrom("XDG_CACHE_HOME").value_or(home / ".cache"),
            .state = folderFrom("XDG_STATE_HOME").value_or(home / ".local/state"),
            .config = folderFrom("XDG_CONFIG_HOME").value_or(home / ".config")};
}

} // namespace quillon
