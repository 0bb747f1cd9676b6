#pragma once

#include <QByteArray>
#include <QFuture>
#include <QPromise>

#include <atomic>
#include <filesystem>
#include <memory>

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

/// A file that is being read on a thread of its own. The copies are one and the same. Thread-safe.
class FileLoading {
public:
    FileLoading() { state_->promise.start(); }

    /// Finishes always: with what was read, or when it is given up.
    [[nodiscard]] QFuture<FileReading> result() const { return state_->promise.future(); }

    /// How many bytes have been read.
    [[nodiscard]] qint64 progress() const { return state_->progress; }

    /// Ends the result as unreadable, unless it is there. The thread is left to itself: a file
    /// system that does not answer keeps it for as long as it likes.
    void giveUp() const { finish({}); }

    // For the thread that reads.

    void setProgress(qint64 bytes) const { state_->progress = bytes; }
    /// Does nothing when the result is there.
    void finish(const FileReading& reading) const {
        state_->promise.addResult(reading, 0);
        state_->promise.finish();
    }

private:
    struct State {
        QPromise<FileReading> promise;
        std::atomic<qint64> progress = 0;
    };
    std::shared_ptr<State> state_ = std::make_shared<State>();
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

    /// Reads as `read` does, on a thread of its own that nothing waits for, neither the end of the
    /// program nor that of this object.
    [[nodiscard]] virtual FileLoading load(std::filesystem::path path, qint64 limit) const = 0;

    /// Replaces the content of the file in place; a new file is readable by its owner alone (0600).
    /// False when it could not be written whole, as on a full disk: then it is as it was before.
    virtual bool write(const std::filesystem::path& path, const QByteArray& bytes) const = 0;

    /// Replaces the file through a temporary one beside it, so that readers see either the old or
    /// the new content.
    virtual bool writeAtomically(const std::filesystem::path& path,
                                 const QByteArray& bytes) const = 0;

    /// Removes the temporary files of writeAtomically that a killed process left beside the file.
    /// No other process may be writing it.
    virtual void removeLeftovers(const std::filesystem::path& path) const = 0;

    /// Creates the folder for its owner alone (0700), with any missing parents.
    virtual bool createFolder(const std::filesystem::path& path) const = 0;
};

} // namespace quillon
