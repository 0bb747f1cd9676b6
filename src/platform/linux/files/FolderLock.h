#pragma once

#include "platform/linux/files/Descriptor.h"

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>

namespace quillon {

/// Keeps two processes of the program from changing the same data at once. The lock ends with the
/// process, however that ends. On file systems without locks, every process gets it.
class FolderLock {
public:
    /// The sentence for a user whose command found the lock taken.
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
