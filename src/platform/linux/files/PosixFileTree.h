#pragma once

#include "platform/FileTree.h"

namespace quillon {

/// Trees of files on a Linux system. Long work runs on Qt's thread pool.
class PosixFileTree final : public FileTree {
public:
    [[nodiscard]] std::filesystem::path resolved(const std::filesystem::path& path) const override;
    [[nodiscard]] bool exists(const std::filesystem::path& path) const override;
    [[nodiscard]] bool isWritable(const std::filesystem::path& folder) const override;
    [[nodiscard]] bool isDeletable(const std::filesystem::path& path) const override;
    [[nodiscard]] QFuture<bool> move(std::filesystem::path from, std::filesystem::path to) override;
    [[nodiscard]] QFuture<bool> copy(std::filesystem::path from, std::filesystem::path to) override;
    [[nodiscard]] QFuture<bool> remove(std::filesystem::path path) override;
    [[nodiscard]] QFuture<void> removeAttribute(std::filesystem::path root,
                                                std::string name) override;
};

} // namespace quillon
