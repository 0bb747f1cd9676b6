#include "platform/linux/desktop/RunningPrograms.h"

#include "platform/linux/desktop/LinuxBundle.h"
#include "platform/linux/files/PosixFileSystem.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string>
#include <string_view>

#include <unistd.h>

namespace quillon {

namespace {

using std::filesystem::path;

/// No path or status is longer, in bytes.
constexpr qint64 maximumSize = 1'000'000;

/// The system adds this to the path of an executable that was removed or replaced.
constexpr std::string_view deletedSuffix = " (deleted)";

bool isProcess(const path& folder) {
    const std::string name = folder.filename();
    return !name.empty() && std::ranges::all_of(name, [](char c) { return c >= '0' && c <= '9'; });
}

/// The process's effective user, from the line "Uid: real effective saved file". The folder's owner
/// does not tell, because the folder of a process that keeps out of core dumps belongs to root.
std::optional<uid_t> userOf(const path& process) {
    constexpr std::string_view label = "\nUid:\t";
    const std::string bytes =
        PosixFileSystem{}.read(process / "status", maximumSize).bytes.toStdString();
    std::string_view text = bytes;
    const auto start = text.find(label);
    if (start == text.npos) return std::nullopt;
    text.remove_prefix(start + label.size());
    text.remove_prefix(std::min(text.find('\t') + 1, text.size()));
    uid_t user = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), user);
    return read.ec == std::errc{} ? std::optional{user} : std::nullopt;
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
        const path& process = each->path();
        if (!isProcess(process) || userOf(process) != ::geteuid()) continue;
        if (const auto program = programOf(process)) programs.push_back(*program);
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
