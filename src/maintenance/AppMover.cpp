#include "maintenance/AppMover.h"

#include "base/Translate.h"
#include "platform/FileSystem.h"
#include "platform/FileTree.h"
#include "platform/LoginItem.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"

#include <QCoroFuture>

#include <algorithm>

namespace quillon {

namespace {

using std::filesystem::path;

/// A part of every path below which the system keeps hidden copies.
constexpr std::string_view translocation = "/AppTranslocation/";
/// The extended attribute that marks downloaded files.
constexpr const char* quarantine = "user.com.apple.quarantine";

constexpr const char* hiddenCopy = QT_TRANSLATE_NOOP(
    "AppMover",
    "macOS is running Quillon from a hidden copy. Open your Downloads folder and drag Quillon into "
    "Applications yourself, then open it from there.");
constexpr const char* noFolder = QT_TRANSLATE_NOOP(
    "AppMover",
    "Your Mac didn't allow Quillon to write to the Applications folder. Open your Downloads folder "
    "and drag Quillon into Applications yourself, then open it from there.");
constexpr const char* olderIsOpen = QT_TRANSLATE_NOOP(
    "AppMover",
    "An older Quillon is open from Applications. Quit it from its menu, then try again.");
constexpr const char* olderStays = QT_TRANSLATE_NOOP(
    "AppMover",
    "Couldn't replace the older Quillon in Applications. Move it to the Trash yourself, then try "
    "again.");
constexpr const char* notAllowed = QT_TRANSLATE_NOOP(
    "AppMover",
    "Your Mac didn't allow the move. Open your Downloads folder and drag Quillon into Applications "
    "yourself, then open it from there.");

Alert failure(const std::exception& error) {
    return {.warning = true,
            .message = translate("AppMover", "Quillon couldn't move itself"),
            .informativeText = error.what(),
            .buttons = {translate("AppMover", "OK")}};
}

} // namespace

bool AppMover::shouldAsk() const {
    return platform_.bundle.isApplication() && !isInApplications(platform_.bundle.url);
}

path AppMover::homeApplications() const {
    return platform_.folders.home / "Applications";
}

bool AppMover::isInApplications(const path& url) const {
    const path folder = platform_.trees.resolved(url.parent_path());
    const path& shared = platform_.folders.applications;
    return folder == shared || folder == platform_.trees.resolved(shared) ||
           folder == platform_.trees.resolved(homeApplications());
}

QCoro::Task<bool> AppMover::ask() {
    platform_.workspace.activate();
    Alert offer = makeAlert();
    const std::size_t answer = co_await alerts_.show(std::move(offer));
    if (answer != 0) {
        platform_.defaults.setFlag(declinedKey, true);
        co_return false;
    }
    Alert problem;
    try {
        const path moved = co_await move();
        relaunch(moved);
        co_return true;
    } catch (const std::exception& error) {
        problem = failure(error);
    }
    co_await alerts_.show(std::move(problem));
    co_return false;
}

path AppMover::source() const {
    const path& url = platform_.bundle.url;
    if (url.native().find(translocation) == std::string::npos) return url;
    const auto original = originalURL(url);
    if (!original) throw MoveError{translate("AppMover", hiddenCopy)};
    return *original;
}

path AppMover::targetFolder() const {
    const path& shared = platform_.folders.applications;
    if (platform_.trees.isWritable(shared)) return shared;
    path own = homeApplications();
    platform_.files.createFolder(own);
    if (!platform_.trees.isWritable(own)) throw MoveError{translate("AppMover", noFolder)};
    return own;
}

bool AppMover::isRunning(const path& application) const {
    const path wanted = platform_.trees.resolved(application);
    const auto running = platform_.workspace.runningApplications(platform_.bundle.identifier());
    return std::ranges::any_of(
        running, [&](const path& other) { return platform_.trees.resolved(other) == wanted; });
}

/// Sends what lies at the destination to the trash.
QCoro::Task<> AppMover::makeRoom(path destination) {
    if (!platform_.trees.exists(destination)) co_return;
    if (isRunning(destination)) throw MoveError{translate("AppMover", olderIsOpen)};
    const bool trashed = co_await platform_.workspace.trash(destination);
    if (!trashed) throw MoveError{translate("AppMover", olderStays)};
}

QCoro::Task<path> AppMover::move() {
    const path from = source();
    const path to = targetFolder() / from.filename();
    // If somebody else has moved the application meanwhile, what lies there is no older copy.
    if (!platform_.trees.exists(from)) throw MoveError{translate("AppMover", notAllowed)};
    co_await makeRoom(to);
    bool moved = false;
    if (platform_.trees.isDeletable(from)) {
        moved = co_await platform_.trees.move(from, to);
    } else {
        moved = co_await platform_.trees.copy(from, to);
    }
    if (!moved) throw MoveError{translate("AppMover", notAllowed)};
    co_await platform_.trees.removeAttribute(to, quarantine);
    platform_.workspace.listApplication(to);
    const Bundle& bundle = platform_.bundle;
    platform_.loginItem.follow(to / bundle.executable.lexically_relative(bundle.url));
    co_return to;
}

std::optional<path> AppMover::originalURL(const path& /*ofTranslocated*/) {
    return std::nullopt;
}

void AppMover::relaunch(const path& at) {
    platform_.workspace.openAfterExit(at);
    platform_.workspace.terminate();
}

Alert AppMover::makeAlert() {
    return {.warning = false,
            .message = translate("AppMover", "Move Quillon to your Applications folder?"),
            .informativeText = translate("AppMover", "It needs to be there to update itself."),
            .buttons = {translate("AppMover", "Move"), translate("AppMover", "Not now")}};
}

} // namespace quillon
