#pragma once

#include "platform/linux/files/Descriptor.h"

#include <filesystem>
#include <string_view>

namespace quillon {

/// A new folder for this user alone (0700). This process holds a lock on it, by which others can
/// tell it from one that was left behind. The destructor removes it with all it holds.
class PrivateFolder {
public:
    /// Creates `parent`/`prefix`XXXXXX. Check isOpen() afterwards.
    PrivateFolder(const std::filesystem::path& parent, std::string_view prefix);
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;
    ~PrivateFolder();

    [[nodiscard]] bool isOpen() const { return lock_.isOpen(); }
    /// The errno if the folder could not be made.
    [[nodiscard]] int error() const { return error_; }
    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    /// Makes the destructor leave the folder to removeAbandoned.
    void keep() { keep_ = true; }

private:
    bool create(const std::filesystem::path& parent, std::string_view prefix);

    std::filesystem::path path_;
    Descriptor lock_;
    int error_ = 0;
    bool keep_ = false;
};

/// Removes the private folders of this user in `parent` whose process is gone. Follows no links.
void removeAbandoned(const std::filesystem::path& parent, std::string_view prefix);

} // namespace quillon
