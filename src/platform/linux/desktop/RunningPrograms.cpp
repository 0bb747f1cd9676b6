#include "platform/linux/desktop/RunningPrograms.h"

#include "platform/linux/desktop/LinuxBundle.h"
#include "platform/linux/files/PosixFileSystem.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

using std::filesystem::path;

/// No path is longer, in bytes.
constexpr qint64 maximumSize = 1'000'000;

/// The system adds this to the path of an executable that was removed or replaced.
constexpr std::string_view deletedSuffix = " (deleted)";

/// Whether a folder of /proc is one of this user's processes. The folder belongs to the user of the
/// process, and only what lies in it to root while the process keeps out of core dumps.
bool isOwnProcess(const path& folder) {
    const std::string name = folder.filename();
    struct stat about {};
    return std::ranges::all_of(name, [](char c) { return c >= '0' && c <= '9'; }) &&
           ::stat(folder.c_str(), &about) == 0 && about.st_uid == ::geteuid();
}

/// The process's executable; none for a kernel thread, or if the process is gone.
std::optional<path> programOf(const path& process) {
    std::error_code error;
    std::string program = std::filesystem::read_symlink(process / "exe", error).native();
    if (!error) {
        if (program.ends_with(deletedSuffix)) program.resize(program.size() - deletedSuffix.size());
        return program;
    }
    if (error != std::errc::permission_denied) return std::nullopt;
    const QByteArray words = PosixFileSystem{}.read(process / "cmdline", maximumSize).bytes;
    // The path ends at the first NUL.
    const path word{words.constData()};
    if (!word.is_absolute()) return std::nullopt;
    auto resolved = std::filesystem::weakly_canonical(word, error);
    return error ? word : resolved;
}

} // namespace

std::vector<path> runningPrograms() {
    std::vector<path> programs;
    std::error_code error;
    std::filesystem::directory_iterator each{"/proc", error};
    for (; !error && each != std::filesystem::directory_iterator{}; each.increment(error)) {
        if (!isOwnProcess(*each)) continue;
        if (const auto program = programOf(*each)) programs.push_back(*program);
    }
    return programs;
}

void runByAbsolutePath(char** argv) {
    if (argv[0] && argv[0][0] == '/') return;
    std::error_code error;
    std::string program = std::filesystem::read_symlink("/proc/self/exe", error).native();
    if (error || !applicationFolder(program)) return;
    argv[0] = program.data();
    ::execv(program.c_str(), argv);
}

} // namespace quillon
