#pragma once

#include <filesystem>

namespace quillon {

/// Copies a file, link or folder with all it holds to a path where nothing is yet: contents, modes,
/// times, extended attributes, symbolic links and hard links. The copy belongs to this process's
/// user; a set-user or set-group bit that would thereby name somebody else is dropped. Sockets and
/// devices make it fail. If false, nothing is at `to`: the copy grows beside it and is renamed only
/// when it is complete and on disk. (std::filesystem::copy keeps neither times nor attributes nor
/// hard links, and would follow a link that takes a folder's place meanwhile.)
[[nodiscard]] bool copyTree(const std::filesystem::path& from, const std::filesystem::path& to);

/// Renames within one file system to a path where nothing is yet. If false, errno tells why.
[[nodiscard]] bool renameToNew(const std::filesystem::path& from, const std::filesystem::path& to);

/// Moves to a path where nothing is yet. On another file system it copies, and leaves what it
/// cannot remove of the original. If false, the original is whole.
[[nodiscard]] bool moveTree(const std::filesystem::path& from, const std::filesystem::path& to);

/// Removes a file, link or folder with all it holds, also from folders whose mode forbids that.
/// Follows no links. A failure is ignored.
void discardTree(const std::filesystem::path& tree);

} // namespace quillon
