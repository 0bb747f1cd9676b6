#pragma once

#include "platform/FileSystem.h"

namespace quillon {

/// The files of this computer. Has no state.
class PosixFileSystem : public FileSystem {
public:
    [[nodiscard]] FileReading read(const std::filesystem::path& path, qint64 limit) const override;

    [[nodiscard]] FileLoading load(std::filesystem::path path, qint64 limit) const override;

    /// False for everything but regular files: for pipes, devices and folders.
    bool write(const std::filesystem::path& path, const QByteArray& bytes) const override;

    /// Has write()'s restrictions. The temporary file is removed if anything fails.
    bool writeAtomically(const std::filesystem::path& path, const QByteArray& bytes) const override;

    void removeLeftovers(const std::filesystem::path& path) const override;

    bool createFolder(const std::filesystem::path& path) const override;
};

} // namespace quillon
