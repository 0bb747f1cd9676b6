#pragma once

#include <filesystem>

namespace quillon {

/// Copies a file, link or folder with all it holds to a path where nothing is yet: contents, modes,
/// times, extended attributes, links as links, and files of several names as such. The copy belongs
/// to whoever makes it; a set-user or set-group bit that would thereby mean somebody else is
/// dropped. Sockets and devices are not copied. When false, nothing is at `to`: the copy grows
/// beside it and only goes there when it is complete and on disk.
[[nodiscard]] bool copyTree(const std::filesystem::path& from, const std::filesystem::path& to);

/// Renames within one file system to a path where nothing is yet; errno tells why not.
[[nodiscard]] bool renameToNew(const std::filesystem::path& from, const std::filesystem::path& to);

/// Moves to a path where nothing is yet, to another file system by a copy; what of the original
/// cannot be removed then stays. When false, the original is whole.
[[nodiscard]] bool moveTree(const std::filesystem::path& from, const std::filesystem::path& to);

/// Removes a file, link or folder with all it holds, also from folders whose mode forbids that.
/// Follows no links. A failure is ignored.
void discardTree(const std::filesystem::path& tree);

} // namespace quillon
