#pragma once

#include <QFileSystemWatcher>
#include <QTimer>

namespace quillon {

class Store;
struct Platform;

/// Has the store take over what somebody else writes into config.json while the program runs, such
/// as the topics' names that `quillon rename-topics` gives them.
class ConfigWatch {
public:
    /// Both outlive it.
    ConfigWatch(const Platform& platform, Store& store);

private:
    void watch();
    void reread();

    Store& store_;
    QString folder_;
    QString file_;
    QFileSystemWatcher watcher_;
    QTimer soon_;
};

} // namespace quillon
