// Shows one of the update windows on the real display, to be looked at and taken pictures of.
// Arguments: the window's name and, where it takes one, a text.
#include "update/windows/UpdateWindows.h"

#include <QApplication>
#include <QPalette>

#include <cstdio>
#include <functional>
#include <map>
#include <string>

namespace {

using namespace quillon;

UpdateError failure(const std::string& text) {
    return {.domain = std::string{SUSparkleErrorDomain}, .code = 1, .description = text};
}

UpdateProgress downloaded(qint64 received) {
    return {.stage = UpdateProgress::Stage::downloading, .received = received, .total = 12'400'000};
}

using Show = std::function<void(UpdateWindows&, const std::string& text)>;

const std::map<std::string, Show> shows{
    {"permission", [](auto& windows, auto&) { std::ignore = windows.askPermission(); }},
    {"checking", [](auto& windows, auto&) { windows.showChecking(std::stop_source{}); }},
    {"current", [](auto& windows, auto&) { windows.showUpToDate("1.0"); }},
    {"update",
     [](auto& windows, auto& text) {
         std::ignore = windows.showUpdate({"1.0", "1.1", text});
     }},
    {"gently",
     [](auto& windows, auto& text) {
         std::ignore = windows.showUpdate({"1.0", "1.1", text, true});
     }},
    {"connecting", [](auto& windows, auto&) { windows.showPreparing("1.1", std::stop_source{}); }},
    {"progress",
     [](auto& windows, auto&) {
         windows.showPreparing("1.1", std::stop_source{});
         windows.showProgress(downloaded(3'210'000));
     }},
    {"unpacking",
     [](auto& windows, auto&) {
         windows.showPreparing("1.1", std::stop_source{});
         windows.showProgress({.stage = UpdateProgress::Stage::unpacking});
     }},
    {"ready", [](auto& windows, auto&) { std::ignore = windows.showReady("1.1"); }},
    {"installed", [](auto& windows, auto&) { windows.showInstalled("1.1"); }},
    {"error", [](auto& windows, auto& text) { windows.showError(failure(text)); }},
};

} // namespace

int main(int argc, char** argv) {
    const QApplication application{argc, argv};
    const QStringList arguments = QApplication::arguments();
    const auto show = shows.find(arguments.value(1).toStdString());
    if (show == shows.end()) {
        std::fputs("usage: update_shots WINDOW [TEXT]\n", stderr);
        for (const auto& [name, action] : shows)
            std::fprintf(stderr, "  %s\n", name.c_str());
        return 2;
    }
    UpdateWindows windows;
    show->second(windows, arguments.value(2).toStdString());
    return QApplication::exec();
}
