#pragma once

#include <filesystem>
#include <optional>

namespace quillon {

/// Keeps two processes of the program from changing the same data at once. Ends with the process,
/// however that ends. Where the file system knows no locks, every process has its own way.
class FolderLock {
public:
    enum class IfHeld { wait, giveUp };

    /// None when another process holds the folder and this one is not to wait.
    [[nodiscard]] static std::optional<FolderLock> take(const std::filesystem::path& folder,
                                                        IfHeld ifHeld);
    FolderLock(FolderLock&& other) noexcept;
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    FolderLock& operator=(FolderLock&&) = delete;
    ~FolderLock();

    void release();

private:
    explicit FolderLock(int descriptor) : descriptor_{descriptor} {}

    int descriptor_;
};

} // namespace quillon
