#include "ui/Resident.h"

#include "maintenance/AppMover.h"
#include "platform/FileSystem.h"
#include "platform/LoginItem.h"
#include "platform/Platform.h"
#include "platform/Workspace.h"
#include "update/BundleUpdater.h"

#include <QApplication>
#include <QFontMetrics>

#include <chrono>
#include <iostream>
#include <utility>

namespace quillon {

namespace {

/// Longer than a command takes, unless the network makes it wait.
constexpr std::chrono::milliseconds lockPatience{5000};

/// The first text to be drawn has Qt look through the fonts, which takes longer than a frame:
/// better now than when the first banner fades in.
void loadFont() {
    [[maybe_unused]] const int width =
        QFontMetrics{QApplication::font()}.horizontalAdvance(QLatin1Char('Q'));
}

UpdaterHooks hooks(Platform& platform, AppMover& mover, UpdateWindows& windows) {
    return {
        .makeFramework = [&platform,
                          &windows] { return std::make_unique<BundleUpdater>(platform, windows); },
        .shouldAskToMove = [&mover] { return mover.shouldAsk(); },
        .askToMove = [&mover] { return mover.ask(); },
        .log = {}};
}

} // namespace

std::unique_ptr<Resident> Resident::claim(Platform& platform, AppMover& mover) {
    platform.files.createFolder(platform.dataFolder);
    // First the name, then the lock: who finds no name may have the lock for a moment, and who
    // finds the name hands its command over.
    auto service =
        std::make_unique<CommandService>([&platform] { platform.workspace.terminate(); });
    if (service->publish() == CommandService::Publication::takenByAnother) return nullptr;
    auto lock = FolderLock::take(platform.dataFolder, lockPatience);
    if (!lock) return nullptr;
    return std::unique_ptr<Resident>{
        new Resident{platform, mover, std::move(service), *std::move(lock)}};
}

Resident::Resident(Platform& platform, AppMover& mover, std::unique_ptr<CommandService> service,
                   FolderLock lock)
    : platform_{platform},
      lock_{std::move(lock)},
      analytics_{platform},
      hud_{platform.clock, compositor_, [this] { return store_.config().bannerPosition; }},
      banner_{&hud_},
      store_{platform, analytics_, banner_},
      updater_{platform, analytics_, hooks(platform, mover, updateWindows_)},
      service_{std::move(service)} {}

void Resident::start() {
    platform_.loginItem.follow(platform_.bundle.executable);
    analytics_.start();
    updater_.start();
    if (!store_.started()) {
        store_.setStarted();
        store_.registerShortcut();
    }
    if (store_.shortcutTaken()) {
        std::cerr << keysText(store_.config().shortcut)
                  << " is already used by another app. Pick another shortcut in Settings."
                  << std::endl;
    }
    service_->serve({platform_, analytics_, store_, banner_, nullptr});
    loadFont();
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, &store_,
                     [this] { analytics_.flushBeforeQuit(); });
}

} // namespace quillon
