// Takes pictures of the update windows.
#include "shots/Shots.h"
#include "ui/updates/UpdateWindows.h"
#include "update/Errors.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>
#include <map>

namespace {

using namespace quillon;
using namespace quillon::test;

constexpr const char* notes =
    "<h2>What is new</h2><ul><li>Files of up to 50 MB</li><li>A banner that can stand at the top, "
    "in the middle or at the bottom</li><li>See <a href=\"https://example.org\">the whole "
    "list</a></li></ul>";
constexpr const char* longError =
    "/home/anna/Applications/Quillon.app/Contents/Resources/a-very-long-name-without-any-space-in-"
    "it.txt could not be written: the file system said no, and then no again.";

UpdateProgress downloaded(qint64 received) {
    return {.stage = UpdateProgress::Stage::downloading, .received = received, .total = 12'400'000};
}

using Show = std::function<void(UpdateWindows&)>;

const std::map<std::string, Show> shows{
    {"permission", [](UpdateWindows& windows) { std::ignore = windows.askPermission(); }},
    {"checking", [](UpdateWindows& windows) { windows.showChecking(std::stop_source{}); }},
    {"current", [](UpdateWindows& windows) { windows.showUpToDate("1.0"); }},
    {"update",
     [](UpdateWindows& windows) {
         std::ignore = windows.showUpdate({"1.0", "1.1", notes});
     }},
    {"gently",
     [](UpdateWindows& windows) {
         std::ignore = windows.showUpdate({"1.0", "1.1", notes, true});
     }},
    {"connecting",
     [](UpdateWindows& windows) { windows.showPreparing("1.1", std::stop_source{}); }},
    {"progress",
     [](UpdateWindows& windows) {
         windows.showPreparing("1.1", std::stop_source{});
         windows.showProgress(downloaded(3'210'000));
     }},
    {"unpacking",
     [](UpdateWindows& windows) {
         windows.showPreparing("1.1", std::stop_source{});
         windows.showProgress({.stage = UpdateProgress::Stage::unpacking});
     }},
    {"ready", [](UpdateWindows& windows) { std::ignore = windows.showReady("1.1"); }},
    {"installed", [](UpdateWindows& windows) { windows.showInstalled("1.1"); }},
    {"error",
     [](UpdateWindows& windows) { windows.showError(updateError(updateFeedUnreachable)); }},
    {"error-long",
     [](UpdateWindows& windows) {
         UpdateError error = updateError(updateCopyFailed);
         error.description = longError;
         windows.showError(error);
     }},
};

QPixmap take(const Show& show) {
    UpdateWindows windows;
    show(windows);
    until([] { return std::ranges::any_of(QApplication::topLevelWidgets(), &QWidget::isVisible); });
    return pictureOf(onlyWindow());
}

std::vector<Shot> shots() {
    std::vector<Shot> all;
    for (const auto& [name, show] : shows)
        all.push_back({name, [&show] { return take(show); }});
    return all;
}

} // namespace

int main(int argc, char** argv) {
    return takeShots(argc, argv, shots(),
                     {QString::fromLatin1(longError), QStringLiteral("Quillon")});
}
