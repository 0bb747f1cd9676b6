#pragma once

#include "platform/FileSystem.h"

namespace quillon {

/// The files of this computer. Holds nothing.
class PosixFileSystem final : public FileSystem {
public:
    [[nodiscard]] FileReading read(const std::filesystem::path& path, qint64 limit) const override;

    /// False for whatever is not a regular file: pipes, devices, folders.
    bool write(const std::filesystem::path& path, const QByteArray& bytes) const override;

    /// As for write(). The temporary file is removed when something goes wrong.
    bool writeAtomically(const std::filesystem::path& path, const QByteArray& bytes) const override;

    bool createFolder(const std::filesystem::path& path) const override;
};

} // namespace quillon
