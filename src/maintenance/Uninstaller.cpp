#include "maintenance/Uninstaller.h"

#include "analytics/Analytics.h"
#include "base/Translate.h"
#include "maintenance/Alerts.h"
#include "platform/FileTree.h"
#include "platform/LoginItem.h"
#include "platform/Platform.h"
#include "platform/SecretStore.h"
#include "platform/Sleep.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"
#include "state/Store.h"

#include <QCoroFuture>

#include <chrono>

namespace quillon {

namespace {

using namespace std::chrono_literals;
using std::filesystem::path;

/// A user who is asked to unlock the keyring has this long. The question may be where nobody sees
/// it, and must not keep everything else from being removed.
constexpr std::chrono::milliseconds keyringPatience = 30s;
constexpr std::chrono::milliseconds keyringInterval = 50ms;

/// Tells the user how to finish: by moving the application folder to the trash, or by removing the
/// package that holds the executable.
Alert applicationStays(const Bundle& bundle) {
    const char* const left =
        bundle.isApplication()
            ? QT_TRANSLATE_NOOP("Uninstaller",
                                "It couldn't move itself to the Trash. Drag Quillon from "
                                "Applications to the Trash to finish.")
            : QT_TRANSLATE_NOOP("Uninstaller",
                                "It couldn't move itself to the Trash. Remove Quillon with your "
                                "package manager to finish.");
    return {.warning = false,
            .message = translate("Uninstaller", "Quillon is cleaned up"),
            .informativeText = translate("Uninstaller", left),
            .buttons = {translate("Uninstaller", "OK")}};
}

} // namespace

std::array<path, 6> Uninstaller::folders() const {
    const Folders& folders = platform_.folders;
    const std::string id = platform_.bundle.folderName();
    return {folders.data / "Quillon",
            folders.cache / id,
            folders.cache / "HTTPStorages" / id,
            folders.cache / "HTTPStorages" / (id + ".binarycookies"),
            folders.data / "WebKit" / id,
            folders.state / (id + ".savedState")};
}

QCoro::Task<bool> Uninstaller::removeToken() {
    const QFuture<SecretAnswer> removing = platform_.secrets.remove(botTokenItem());
    for (auto waited = 0ms; !removing.isFinished(); waited += keyringInterval) {
        if (waited >= keyringPatience) co_return false;
        co_await sleep(platform_.clock, keyringInterval);
    }
    co_return removing.result() == SecretAnswer::absent;
}

QCoro::Task<> Uninstaller::run(std::function<void(bool tokenRemoved)> onTrashed) {
    store_.stopPersisting();
    analytics_.stopPersisting();
    co_await dropUpdates_();
    const bool tokenRemoved = co_await removeToken();
    platform_.loginItem.unregisterItem();
    for (const path& folder : folders()) {
        co_await platform_.trees.remove(folder);
    }
    platform_.defaults.removeAll();
    platform_.workspace.unlistApplication();
    const QFuture<void> unbinding = platform_.workspace.removeKeyBindings();
    co_await unbinding;
    bool trashed = false;
    // An executable without an application folder belongs to a package, or to who built it.
    if (platform_.bundle.isApplication()) {
        trashed = co_await platform_.workspace.trash(platform_.bundle.url);
    }
    if (trashed) {
        if (onTrashed) onTrashed(tokenRemoved);
    } else {
        platform_.workspace.activate();
        Alert alert = applicationStays(platform_.bundle);
        co_await alerts_.show(std::move(alert));
    }
    platform_.workspace.exitNow(0);
}

} // namespace quillon
