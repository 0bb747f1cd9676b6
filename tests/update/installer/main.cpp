#include "base/Bytes.h"
#include "platform/linux/desktop/LinuxBundle.h"
#include "platform/linux/files/PosixFileSystem.h"
#include "update/Archive.h"
#include "update/Installation.h"

#include <cstdio>

// installer BUNDLE ARCHIVE VERSION: puts the version in the archive in the bundle's place.
int main(int argc, char** argv) {
    using namespace quillon;
    if (argc != 4) return 2;
    PreparedUpdate update;
    update.bundle = argv[1];
    update.item.version = update.item.shortVersion = argv[3];
    Staging staging = makeStaging(update.bundle);
    if (staging.error) return 3;
    update.folder = staging.folder;
    const FileReading archive = PosixFileSystem{}.read(argv[2], maximumArchiveSize);
    if (unpack(asText(archive.bytes), update.folder->path())) return 4;
    auto [path, error] = checkStaged(update.folder->path(), bundleAt(update.bundle), update.item);
    if (error || !flushTree(path)) return 5;
    update.staged = path;
    return install(update) ? 6 : 0;
}
