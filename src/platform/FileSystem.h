#pragma once

#include <QByteArray>

#include <filesystem>

namespace quillon {

/// The result of reading a file.
struct FileReading {
    enum class Outcome {
        read,       ///< `bytes` holds the whole file
        directory,  ///< there is a folder at the path
        unreadable, ///< missing, no permission, or a pipe, socket or device
        tooBig,     ///< larger than the limit; nothing was read, `size` tells how large
    };
    Outcome outcome = Outcome::unreadable;
    qint64 size = 0;
    QByteArray bytes{};
};

/// Reads and writes files by path, whatever kind of item lies there. Thread-safe; errors are
/// outcomes, never exceptions.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    /// Reads a regular file of at most `limit` bytes, following symbolic links. Never waits for the
    /// other end of a pipe and never opens a device.
    [[nodiscard]] virtual FileReading read(const std::filesystem::path& path,
                                           qint64 limit) const = 0;

    /// Replaces the content of the file in place; a new file is readable by its owner alone (0600).
    virtual bool write(const std::filesystem::path& path, const QByteArray& bytes) const = 0;

    /// Replaces the file through a temporary one beside it, so that readers see either the old or
    /// the new content.
    virtual bool writeAtomically(const std::filesystem::path& path,
                                 const QByteArray& bytes) const = 0;

    /// Creates the folder for its owner alone (0700), with any missing parents.
    virtual bool createFolder(const std::filesystem::path& path) const = 0;
};

} // namespace quillon
