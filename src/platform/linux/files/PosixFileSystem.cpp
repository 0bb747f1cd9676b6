#include "platform/linux/files/PosixFileSystem.h"

#include "base/Bytes.h"
#include "platform/linux/files/Descriptor.h"

#include <fcntl.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>

namespace quillon {

namespace {

using std::filesystem::path;

/// Reads beyond a file's claimed size ask for this many bytes.
constexpr size_t probeSize = 4096;

FileReading failed(FileReading::Outcome outcome, qint64 size = 0) {
    return {.outcome = outcome, .size = size};
}

/// The outcome for a file that must not be read because of its kind or size; none if it may be.
std::optional<FileReading> objection(const struct stat& status, qint64 limit) {
    using enum FileReading::Outcome;
    if (S_ISDIR(status.st_mode)) return failed(directory);
    if (!S_ISREG(status.st_mode)) return failed(unreadable);
    if (status.st_size > limit) return failed(tooBig, status.st_size);
    return std::nullopt;
}

/// Reads to the end of the file, which may lie beyond its claimed size: files below /proc claim to
/// be empty, and others grow meanwhile.
FileReading readAll(int file, qint64 size, qint64 limit) {
    QByteArray bytes{size, Qt::Uninitialized};
    qsizetype used = 0;
    std::array<char, probeSize> probe;
    for (;;) {
        // The read beyond the expected end must not make a big file's buffer grow, so it has its
        // own.
        const bool full = used == bytes.size();
        char* target = full ? probe.data() : bytes.data() + used;
        const auto room = full ? probe.size() : static_cast<size_t>(bytes.size() - used);
        const ssize_t count = uninterrupted([&] { return ::read(file, target, room); });
        if (count < 0) return failed(FileReading::Outcome::unreadable);
        if (count == 0) break;
        used += count;
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

/// Whether the path holds a regular file or nothing, so that a file may be written there.
bool isWritable(const path& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0) return S_ISREG(status.st_mode);
    return errno == ENOENT;
}

} // namespace

FileReading PosixFileSystem::read(const path& path, qint64 limit) const {
    // Opening a device can start it (a tape rewinds), so the kind is checked first. It is checked
    // again once open, because the path may lead elsewhere by then.
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return failed(FileReading::Outcome::unreadable);
    if (auto reason = objection(status, limit)) return *reason;

    constexpr int flags = O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
    const Descriptor file{uninterrupted([&] { return ::open(path.c_str(), flags); })};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0)
        return failed(FileReading::Outcome::unreadable);
    if (auto reason = objection(status, limit)) return *reason;
    return readAll(file.number(), status.st_size, limit);
}

bool PosixFileSystem::write(const path& path, const QByteArray& bytes) const {
    if (!isWritable(path)) return false;
    // The path may lead elsewhere by now, so the file is emptied only once its kind is known.
    constexpr int flags = O_WRONLY | O_CREAT | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
    Descriptor file{uninterrupted([&] { return ::open(path.c_str(), flags, ownersFile); })};
    struct stat status {};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    const bool emptied = uninterrupted([&] { return ::ftruncate(file.number(), 0); }) == 0;
    return emptied && writeAll(file.number(), asText(bytes)) && file.close();
}

bool PosixFileSystem::writeAtomically(const path& path, const QByteArray& bytes) const {
    if (!isWritable(path)) return false;
    std::string temporary = path.native() + ".XXXXXX";
    // mkostemp makes the file readable by its owner alone.
    Descriptor file{::mkostemp(temporary.data(), O_CLOEXEC)};
    if (!file.isOpen()) return false;
    const bool written = writeAll(file.number(), asText(bytes));
    if (file.close() && written && ::rename(temporary.c_str(), path.c_str()) == 0) return true;
    ::unlink(temporary.c_str());
    return false;
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
