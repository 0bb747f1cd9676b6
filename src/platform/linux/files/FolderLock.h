#pragma once

#include "platform/linux/files/Descriptor.h"

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>

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

    void release() { folder_.close(); }

private:
    explicit FolderLock(Descriptor folder) : folder_{std::move(folder)} {}

    Descriptor folder_;
};

} // namespace quillon
