// Takes pictures of the alerts. Arguments: the folder for them and, if it shall not be all of them,
// the names of some. DARK=1 gives dark colours, TEXT=1.25 larger text and QT_SCALE_FACTOR=2 more
// pixels.
#include "maintenance/AppMover.h"
#include "support/Await.h"
#include "ui/alerts/AlertWindows.h"
#include "ui/views/Palettes.h"

#include <QApplication>
#include <QWidget>

#include <cstdio>
#include <map>
#include <string>

namespace {

using namespace quillon;
using namespace quillon::test;

Alert failure(std::string text) {
    return {.warning = true,
            .message = "Quillon couldn't move itself",
            .informativeText = std::move(text),
            .buttons = {"OK"}};
}

std::string longText() {
    std::string text;
    while (text.size() < 2'000)
        text += "The folder /home/somebody/Applications/Quillon.app could not be written to. ";
    return text;
}

const std::map<std::string, Alert> alerts{
    {"move", AppMover::makeAlert()},
    {"move-failed", failure("An older Quillon is open from Applications. Quit it from its menu, "
                            "then try again.")},
    {"move-failed-long", failure(longText())},
    {"uninstalled",
     {.warning = false,
      .message = "Quillon is cleaned up",
      .informativeText = "It couldn't move itself to the Trash. Drag Quillon from "
                         "Applications to the Trash to finish.",
      .buttons = {"OK"}}},
};

void take(const std::string& name, const QString& folder) {
    auto answer = AlertWindows{}.show(alerts.at(name));
    waitUntil([] { return false; }, std::chrono::milliseconds{50});
    QWidget* window = QApplication::activeModalWidget();
    window->grab().save(folder + QLatin1Char{'/'} + QString::fromStdString(name) +
                        QStringLiteral(".png"));
    std::printf("%s %dx%d\n", name.c_str(), window->width(), window->height());
    window->close();
    await(answer);
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application{argc, argv};
    QApplication::setPalette(qEnvironmentVariableIsSet("DARK") ? darkPalette() : lightPalette());
    QFont font = QApplication::font();
    const double text = qEnvironmentVariable("TEXT", QStringLiteral("1")).toDouble();
    font.setPointSizeF(font.pointSizeF() * text);
    QApplication::setFont(font);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 2) {
        std::fputs("usage: alert_shots FOLDER [NAME...]\n", stderr);
        return 2;
    }
    for (const auto& [name, alert] : alerts) {
        if (arguments.size() == 2 || arguments.contains(QString::fromStdString(name)))
            take(name, arguments[1]);
    }
    return 0;
}
