#pragma once

#include "platform/linux/files/Descriptor.h"

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

    /// None when another process holds the folder; never waits.
    [[nodiscard]] static std::optional<FolderLock> take(const std::filesystem::path& folder);

private:
    explicit FolderLock(Descriptor folder) : folder_{std::move(folder)} {}

    Descriptor folder_;
};

} // namespace quillon
