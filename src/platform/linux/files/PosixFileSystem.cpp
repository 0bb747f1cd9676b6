#include "platform/linux/files/PosixFileSystem.h"

#include "base/Bytes.h"
#include "platform/linux/files/Descriptor.h"
#include "platform/linux/files/Modes.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>

namespace quillon {

namespace {

using std::filesystem::path;

/// How much is asked for beyond the size a file claims to have, in bytes.
constexpr size_t probeSize = 4096;

FileReading failed(FileReading::Outcome outcome, qint64 size = 0) {
    FileReading reading;
    reading.outcome = outcome;
    reading.size = size;
    return reading;
}

/// What speaks against reading a file of this kind and size.
std::optional<FileReading> objection(const struct stat& status, qint64 limit) {
    using enum FileReading::Outcome;
    if (S_ISDIR(status.st_mode)) return failed(directory);
    if (!S_ISREG(status.st_mode)) return failed(unreadable);
    if (status.st_size > limit) return failed(tooBig, status.st_size);
    return std::nullopt;
}

/// Reads to the end of the file, which need not be where its size says: files below /proc claim to
/// be empty, others grow meanwhile.
FileReading readAll(int file, qint64 size, qint64 limit) {
    FileReading reading;
    reading.bytes = QByteArray{size, Qt::Uninitialized};
    qsizetype used = 0;
    std::array<char, probeSize> probe;
    for (;;) {
        // Asking beyond the expected end must not make the buffer of a big file grow.
        const bool full = used == reading.bytes.size();
        char* target = full ? probe.data() : reading.bytes.data() + used;
        const auto room = full ? probe.size() : static_cast<size_t>(reading.bytes.size() - used);
        const ssize_t count = uninterrupted([&] { return ::read(file, target, room); });
        if (count < 0) return failed(FileReading::Outcome::unreadable);
        if (count == 0) break;
        used += count;
        if (full) reading.bytes.append(probe.data(), count);
        if (used > limit) {
            struct stat status {};
            ::fstat(file, &status);
            return failed(FileReading::Outcome::tooBig, std::max<qint64>(used, status.st_size));
        }
    }
    reading.bytes.truncate(used);
    reading.size = used;
    reading.outcome = FileReading::Outcome::read;
    return reading;
}

/// Whether a file may be written at the path: a regular one is there, or nothing.
bool isWritable(const path& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0) return S_ISREG(status.st_mode);
    return errno == ENOENT;
}

} // namespace

FileReading PosixFileSystem::read(const path& path, qint64 limit) const {
    // Opening a device can set it going (a tape rewinds), so its kind is looked up first; then
    // again, because the path may lead elsewhere by now.
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
    // Emptied only once it is known to be a file: the path may lead elsewhere by now.
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
    // Readable by its owner alone, as mkostemp makes it.
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
