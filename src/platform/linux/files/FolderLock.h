#pragma once

#include <chrono>
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

    /// Waits for at most `patience`; none when another process holds the folder for longer.
    [[nodiscard]] static std::optional<FolderLock> take(const std::filesystem::path& folder,
                                                        std::chrono::milliseconds patience = {});
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
