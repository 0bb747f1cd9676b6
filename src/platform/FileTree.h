#pragma once

#include <QFuture>

#include <filesystem>
#include <string>

namespace quillon {

/// Moves, copies and removes files and whole folders. Long work runs off the main thread. Paths may
/// hold any bytes; a symbolic link stands for itself, never for its target, unless a comment says
/// otherwise.
class FileTree {
public:
    virtual ~FileTree() = default;

    /// The path with every symbolic link resolved, as far as the path exists.
    [[nodiscard]] virtual std::filesystem::path
    resolved(const std::filesystem::path& path) const = 0;
    [[nodiscard]] virtual bool exists(const std::filesystem::path& path) const = 0;
    /// Whether this user may create and remove entries in the folder, links followed.
    [[nodiscard]] virtual bool isWritable(const std::filesystem::path& folder) const = 0;
    /// Whether this user may take the item out of its folder, with all it holds.
    [[nodiscard]] virtual bool isDeletable(const std::filesystem::path& path) const = 0;

    /// Moves to a path where nothing is yet, across file systems if necessary. If false, the item
    /// is still whole at `from`.
    [[nodiscard]] virtual QFuture<bool> move(std::filesystem::path from,
                                             std::filesystem::path to) = 0;
    /// Copies with modes, times, extended attributes and links as they are, to a path where nothing
    /// is yet. If false, nothing is there.
    [[nodiscard]] virtual QFuture<bool> copy(std::filesystem::path from,
                                             std::filesystem::path to) = 0;
    /// Removes the item with all it holds. True when nothing is there any more.
    [[nodiscard]] virtual QFuture<bool> remove(std::filesystem::path path) = 0;
    /// Removes the extended attribute from the item and from everything in it. Failures are
    /// ignored.
    [[nodiscard]] virtual QFuture<void> removeAttribute(std::filesystem::path root,
                                                        std::string name) = 0;
};

} // namespace quillon
