#include "ui/ConfigWatch.h"

#include "platform/Platform.h"
#include "state/DataFile.h"
#include "state/Store.h"

#include <QFile>

#include <chrono>

namespace quillon {

namespace {

using namespace std::chrono_literals;

/// Editors write a file in several steps.
constexpr std::chrono::milliseconds editorsPause = 200ms;
/// How often to try while an action is at work.
constexpr std::chrono::milliseconds retryInterval = 1s;

} // namespace

ConfigWatch::ConfigWatch(const Platform& platform, Store& store)
    : store_{store},
      folder_{QFile::decodeName(platform.dataFolder.c_str())},
      file_{QFile::decodeName((platform.dataFolder / configFile).c_str())} {
    soon_.setSingleShot(true);
    QObject::connect(&soon_, &QTimer::timeout, &soon_, [this] { reread(); });
    const auto changed = [this] { soon_.start(editorsPause); };
    QObject::connect(&watcher_, &QFileSystemWatcher::fileChanged, &soon_, changed);
    QObject::connect(&watcher_, &QFileSystemWatcher::directoryChanged, &soon_, changed);
    watch();
}

/// The folder tells of a file that takes the other's place, as many editors save, and the file
/// itself of what is written into it.
void ConfigWatch::watch() {
    watcher_.addPaths({folder_, file_});
}

void ConfigWatch::reread() {
    watch();
    const ShortcutChoice before = store_.config().shortcut;
    if (!store_.rereadConfig()) return soon_.start(retryInterval);
    if (store_.config().shortcut != before) store_.registerShortcut();
}

} // namespace quillon
