#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace quillon {

/// Keeps two processes of the program from changing the same data at once. Ends with the process,
/// however that ends. Where the file system knows no locks, every process has its own way.
class FolderLock {
public:
    /// What to tell whoever was turned away.
    [[nodiscard]] static std::string heldMessage();

    /// None when another process holds the folder; never waits.
    [[nodiscard]] static std::optional<FolderLock> take(const std::filesystem::path& folder);
    FolderLock(FolderLock&& other) noexcept;
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(FolderLock&& other) noexcept;
    FolderLock& operator=(const FolderLock&) = delete;
    ~FolderLock();

private:
    explicit FolderLock(int descriptor) : descriptor_{descriptor} {}

    int descriptor_;
};

} // namespace quillon
