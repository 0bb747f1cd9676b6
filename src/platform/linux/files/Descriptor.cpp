#include "platform/linux/files/Descriptor.h"

namespace quillon {

bool isStillAt(const std::filesystem::path& path, int file) {
    struct stat opened {};
    struct stat named {};
    return ::fstat(file, &opened) == 0 && ::lstat(path.c_str(), &named) == 0 &&
           opened.st_ino == named.st_ino && opened.st_dev == named.st_dev;
}

bool writeAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto count = uninterrupted([&] { return ::write(file, bytes.data(), bytes.size()); });
        if (count < 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

} // namespace quillon
