// Takes pictures of the alerts.
#include "maintenance/AppMover.h"
#include "shots/Shots.h"
#include "support/Await.h"
#include "support/FakeDesktop.h"
#include "ui/alerts/AlertWindows.h"

#include <QApplication>
#include <QWidget>

#include <string>

namespace {

using namespace quillon;
using namespace quillon::test;

FakeWorkspace workspace;

std::string words(const char* text) {
    return shown(text).toStdString();
}

const std::string& longReason() {
    static const std::string reason = [] {
        std::string text;
        while (text.size() < 900)
            text += "The folder /home/anna/Applications/Quillon.app could not be written to. ";
        return text;
    }();
    return reason;
}

Alert failure(std::string reason) {
    return {.warning = true,
            .message = words("Quillon couldn't move itself"),
            .informativeText = std::move(reason),
            .buttons = {words("OK")}};
}

QPixmap take(Alert alert) {
    auto answer = AlertWindows{workspace}.show(std::move(alert));
    until([] { return QApplication::activeModalWidget() != nullptr; });
    QWidget& window = onlyWindow();
    QPixmap picture = pictureOf(window);
    window.close();
    await(answer);
    return picture;
}

std::vector<Shot> shots() {
    return {
        {"move", [] { return take(AppMover::makeAlert()); }},
        {"move-failed",
         [] {
             return take(failure(words("An older Quillon is open from Applications. Quit it from "
                                       "its menu, then try again.")));
         }},
        {"move-failed-long", [] { return take(failure(longReason())); }},
        {"uninstalled",
         [] {
             return take({.warning = false,
                          .message = words("Quillon is cleaned up"),
                          .informativeText = words("It couldn't move itself to the Trash. Drag "
                                                   "Quillon from Applications to the Trash to "
                                                   "finish."),
                          .buttons = {words("OK")}});
         }},
    };
}

} // namespace

int main(int argc, char** argv) {
    return takeShots(argc, argv, shots(),
                     {QString::fromStdString(longReason()), QStringLiteral("Quillon")});
}
