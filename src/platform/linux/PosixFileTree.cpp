#include "platform/linux/PosixFileTree.h"

#include <unistd.h>

#include <system_error>

namespace quillon {

using std::filesystem::path;

path PosixFileTree::resolved(const path& path) const {
    std::error_code error;
    const auto result = std::filesystem::weakly_canonical(path, error);
    return error ? path : result;
}

bool PosixFileTree::exists(const path& path) const {
    std::error_code error;
    return std::filesystem::exists(std::filesystem::symlink_status(path, error));
}

bool PosixFileTree::isWritable(const path& folder) const {
    return ::access(folder.c_str(), W_OK | X_OK) == 0;
}

bool PosixFileTree::isDeletable(const path& path) const {
    return isWritable(path.parent_path());
}

QFuture<bool> PosixFileTree::move(path from, path to) {
    std::error_code error;
    std::filesystem::rename(from, to, error);
    return QtFuture::makeReadyFuture(!error);
}

QFuture<bool> PosixFileTree::copy(path /*from*/, path /*to*/) {
    return QtFuture::makeReadyFuture(false);
}

QFuture<bool> PosixFileTree::remove(path path) {
    std::error_code error;
    std::filesystem::remove_all(path, error);
    return QtFuture::makeReadyFuture(!error);
}

QFuture<void> PosixFileTree::removeAttribute(path /*root*/, std::string /*name*/) {
    return QtFuture::makeReadyFuture();
}

} // namespace quillon
