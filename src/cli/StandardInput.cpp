#include "cli/StandardInput.h"

#include <QtConcurrentRun>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon::StandardInput {

namespace {

/// A pipe's capacity, in bytes (pipe(7)).
constexpr std::size_t pieceSize = 65'536;

/// In milliseconds.
constexpr int patience = 1000;

/// As read() does, but waits where the file does not want to be waited for.
ssize_t readSome(int file, char* bytes, std::size_t size) {
    for (;;) {
        const ssize_t count = ::read(file, bytes, size);
        if (count >= 0 || (errno != EINTR && errno != EAGAIN)) return count;
        pollfd ready{.fd = file, .events = POLLIN, .revents = 0};
        ::poll(&ready, 1, -1);
    }
}

/// False when either file fails.
bool copyTo(int memory, std::size_t limit) {
    std::array<char, pieceSize> piece{};
    for (std::size_t left = limit; left > 0;) {
        const ssize_t count = readSome(STDIN_FILENO, piece.data(), std::min(left, piece.size()));
        if (count <= 0) return count == 0;
        if (::write(memory, piece.data(), static_cast<std::size_t>(count)) != count) return false;
        left -= static_cast<std::size_t>(count);
    }
    return true;
}

/// Whether the process has the writing end of this pipe; false where that cannot be seen.
bool writes(pid_t process, const struct stat& pipe) {
    std::error_code ignored;
    const std::filesystem::path files = "/proc/" + std::to_string(process) + "/fd";
    for (const auto& each : std::filesystem::directory_iterator{files, ignored}) {
        struct stat end {};
        struct stat link {}; // its rights are those that the file was opened with
        const bool same = ::stat(each.path().c_str(), &end) == 0 && end.st_dev == pipe.st_dev &&
                          end.st_ino == pipe.st_ino;
        if (same && ::lstat(each.path().c_str(), &link) == 0 && (link.st_mode & S_IWUSR) != 0)
            return true;
    }
    return false;
}

/// 0 where it cannot be told.
pid_t parentOf(pid_t process) {
    std::ifstream status{"/proc/" + std::to_string(process) + "/status"};
    for (std::string word; status >> word;) {
        pid_t parent = 0;
        if (word == "PPid:" && status >> parent) return parent;
    }
    return 0;
}

/// Whether one of the processes that led to this one has the other end of this pipe.
bool ancestorWrites(const struct stat& pipe) {
    for (pid_t process = ::getppid(); process > 1; process = parentOf(process)) {
        if (writes(process, pipe)) return true;
    }
    return false;
}

/// Whether neither bytes nor their end come for a while.
bool isSilent() {
    pollfd input{.fd = STDIN_FILENO, .events = POLLIN, .revents = 0};
    return ::poll(&input, 1, patience) == 0;
}

/// Closes the file.
std::optional<QByteArray> readAndClose(int file, qsizetype limit) {
    struct stat status {};
    QByteArray bytes;
    const bool regular = ::fstat(file, &status) == 0 && S_ISREG(status.st_mode);
    if (regular) bytes.resize(std::min<qsizetype>(status.st_size, limit));
    ssize_t count = regular ? 0 : -1;
    for (qsizetype at = 0; at < bytes.size() && count >= 0; at += count) {
        count = ::pread(file, bytes.data() + at, static_cast<std::size_t>(bytes.size() - at), at);
        if (count == 0) bytes.truncate(at);
    }
    if (file >= 0) ::close(file);
    return count < 0 ? std::nullopt : std::optional{bytes};
}

} // namespace

void ensure() {
    // The lowest number that is free is standard input's.
    if (::fcntl(STDIN_FILENO, F_GETFD) < 0) ::open("/dev/null", O_RDONLY);
}

bool isContent() {
    struct stat status {};
    if (::fstat(STDIN_FILENO, &status) != 0) return false;
    if (S_ISFIFO(status.st_mode)) return !ancestorWrites(status) || !isSilent();
    return S_ISREG(status.st_mode);
}

bool hold(std::size_t limit) {
    const int memory = ::memfd_create("quillon-input", MFD_CLOEXEC);
    if (memory < 0) return false;
    const bool copied = copyTo(memory, limit) && ::dup2(memory, STDIN_FILENO) == STDIN_FILENO;
    ::close(memory);
    return copied;
}

QFuture<std::optional<QByteArray>> held(int file, qsizetype limit) {
    return QtConcurrent::run(readAndClose, ::fcntl(file, F_DUPFD_CLOEXEC, 0), limit);
}

} // namespace quillon::StandardInput
