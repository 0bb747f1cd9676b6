#include "platform/linux/files/PosixFileSystem.h"

#include "base/Bytes.h"
#include "platform/linux/files/Place.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <optional>
#include <string>
#include <system_error>
#include <thread>

#include <fcntl.h>
#include <pthread.h>
#include <sys/mman.h>

namespace quillon {

namespace {

using std::filesystem::path;

/// Reads beyond a file's claimed size ask for this many bytes.
constexpr size_t probeSize = 4096;

/// A file is read in pieces of this many bytes.
constexpr qsizetype pieceSize = 512L * 1024;

/// Ends the names of temporary files, beside six characters of chance. A backup that a user keeps
/// has another.
constexpr std::string_view temporaryMark = ".new-";

FileReading failed(FileReading::Outcome outcome, qint64 size = 0) {
    return {.outcome = outcome, .size = size};
}

/// The outcome for what must not be read because of its kind; none if it may be.
std::optional<FileReading> objection(const struct stat& status) {
    using enum FileReading::Outcome;
    if (S_ISDIR(status.st_mode)) return failed(directory);
    if (!S_ISREG(status.st_mode)) return failed(unreadable);
    return std::nullopt;
}

/// Has the system provide the whole pages among these bytes at once, where it can (Linux 5.14): one
/// by one, as they are first touched, they cost more than the reading.
void providePages(char* bytes, qsizetype size) {
    constexpr std::uintptr_t page = 4096;
    const auto start = reinterpret_cast<std::uintptr_t>(bytes);
    const std::uintptr_t first = (start + page - 1) / page * page;
    const std::uintptr_t last = (start + static_cast<std::uintptr_t>(size)) / page * page;
    if (last > first) ::madvise(bytes + (first - start), last - first, MADV_POPULATE_WRITE);
}

/// Reads to the end of the file, which may lie beyond its claimed size: files below /proc claim to
/// be empty, and others grow meanwhile. `told`, where not null, hears how far it has come.
FileReading readAll(int file, qint64 size, qint64 limit, const FileLoading* told) {
    QByteArray bytes{size, Qt::Uninitialized};
    qsizetype used = 0;
    std::array<char, probeSize> probe;
    for (;;) {
        // The read beyond the expected end must not make a big file's buffer grow, so it has its
        // own.
        const bool full = used == bytes.size();
        char* target = full ? probe.data() : bytes.data() + used;
        const auto room = full ? probe.size() : std::min(pieceSize, bytes.size() - used);
        if (room == pieceSize) providePages(target, room);
        const ssize_t count = uninterrupted([&] { return ::read(file, target, room); });
        if (count < 0) return failed(FileReading::Outcome::unreadable);
        if (count == 0) break;
        used += count;
        if (told) told->setProgress(used);
        if (full) bytes.append(probe.data(), count);
        if (used > limit) {
            struct stat status {};
            ::fstat(file, &status);
            return failed(FileReading::Outcome::tooBig, std::max<qint64>(used, status.st_size));
        }
    }
    bytes.truncate(used);
    return {.outcome = FileReading::Outcome::read, .size = used, .bytes = bytes};
}

FileReading readFile(const path& path, qint64 limit, const FileLoading* told) {
    // Opening a device can start it (a tape rewinds), so the kind is checked first. It is checked
    // again once open, because the path may lead elsewhere by then.
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return failed(FileReading::Outcome::unreadable);
    if (auto reason = objection(status)) return *reason;

    constexpr int flags = O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
    const Descriptor file{uninterrupted([&] { return ::open(path.c_str(), flags); })};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0)
        return failed(FileReading::Outcome::unreadable);
    if (auto reason = objection(status)) return *reason;
    if (status.st_size > limit) return failed(FileReading::Outcome::tooBig, status.st_size);
    return readAll(file.number(), status.st_size, limit, told);
}

/// Whether the path holds a regular file or nothing, so that a file may be written there.
bool isWritable(const path& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0) return S_ISREG(status.st_mode);
    return errno == ENOENT;
}

/// The first bytes of the file, at most `count`; none when they cannot be read.
std::optional<QByteArray> beginning(int file, qint64 count) {
    QByteArray bytes{count, Qt::Uninitialized};
    const auto size = static_cast<size_t>(count);
    const ssize_t got = uninterrupted([&] { return ::pread(file, bytes.data(), size, 0); });
    if (got != count) return std::nullopt;
    return bytes;
}

/// Writes the bytes over the file's beginning, and gives the file its size.
bool overwrite(int file, const QByteArray& bytes, qint64 size) {
    return ::lseek(file, 0, SEEK_SET) == 0 && writeAll(file, asText(bytes)) &&
           uninterrupted([&] { return ::ftruncate(file, size); }) == 0;
}

} // namespace

FileReading PosixFileSystem::read(const path& path, qint64 limit) const {
    return readFile(path, limit, nullptr);
}

FileLoading PosixFileSystem::load(path path, qint64 limit) const {
    FileLoading loading;
    const auto work = [loading, path = std::move(path), limit] {
        ::pthread_setname_np(::pthread_self(), "quillon-file");
        try {
            loading.finish(readFile(path, limit, &loading));
        } catch (const std::bad_alloc&) {
            loading.giveUp();
        }
    };
    try {
        std::thread{work}.detach();
    } catch (const std::system_error&) { // too many threads
        loading.giveUp();
    }
    return loading;
}

bool PosixFileSystem::write(const path& path, const QByteArray& bytes) const {
    if (!isWritable(path)) return false;
    // The path may lead elsewhere by now, so the file is written only once its kind is known.
    constexpr int flags = O_RDWR | O_CREAT | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
    Descriptor file{uninterrupted([&] { return ::open(path.c_str(), flags, ownersFile); })};
    struct stat status {};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    // On a full disk a file that was emptied first could not be filled again.
    const auto old = beginning(file.number(), std::min<qint64>(status.st_size, bytes.size()));
    if (!old) return false;
    if (overwrite(file.number(), bytes, bytes.size())) return file.close();
    static_cast<void>(overwrite(file.number(), *old, status.st_size));
    return false;
}

bool PosixFileSystem::writeAtomically(const path& path, const QByteArray& bytes) const {
    if (!isWritable(path)) return false;
    std::string temporary = path.native() + std::string{temporaryMark} + "XXXXXX";
    // mkostemp makes the file readable by its owner alone.
    Descriptor file{::mkostemp(temporary.data(), O_CLOEXEC)};
    if (!file.isOpen()) return false;
    const bool written = writeAll(file.number(), asText(bytes));
    if (file.close() && written && ::rename(temporary.c_str(), path.c_str()) == 0) return true;
    ::unlink(temporary.c_str());
    return false;
}

void PosixFileSystem::removeLeftovers(const path& path) const {
    constexpr int flags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
    const Descriptor folder{::open(path.parent_path().c_str(), flags)};
    const std::string mark = path.filename().native() + std::string{temporaryMark};
    for (const std::string& name : listing(folder.number()).names) {
        if (name.starts_with(mark)) ::unlinkat(folder.number(), name.c_str(), 0);
    }
}

bool PosixFileSystem::createFolder(const path& path) const {
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored)) return true;
    const auto parent = path.parent_path();
    if (!parent.empty() && parent != path && !createFolder(parent)) return false;
    if (::mkdir(path.c_str(), ownersFolder) == 0) return true;
    return errno == EEXIST && std::filesystem::is_directory(path, ignored);
}

} // namespace quillon
