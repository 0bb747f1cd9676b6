// Shows banners on the real display, to be looked at and taken pictures of. Arguments: a position
// and then, for each banner, "good", "bad" or "sticky" and its text; one follows the other by a
// second.
#include "desktop/HUD.h"
#include "platform/linux/QtClock.h"
#include "platform/linux/X11Compositor.h"

#include <QApplication>
#include <QTimer>

#include <cstdio>

namespace {

using namespace quillon;

BannerPosition positionNamed(const QString& name) {
    if (name == QLatin1String{"middle"}) return BannerPosition::middle;
    return name == QLatin1String{"bottom"} ? BannerPosition::bottom : BannerPosition::top;
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application{argc, argv};
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 4 || arguments.size() % 2 != 0) {
        std::fputs("usage: banner_shots top|middle|bottom (good|bad|sticky TEXT)...\n", stderr);
        return 2;
    }
    QtClock clock;
    const X11Compositor compositor;
    HUD hud{clock, compositor, [&] { return positionNamed(arguments[1]); }};
    for (qsizetype i = 2; i < arguments.size(); i += 2) {
        QTimer::singleShot(std::chrono::seconds{i / 2 - 1}, &application, [&, i] {
            const bool good = arguments[i] != QLatin1String{"bad"};
            const bool sticky = arguments[i] == QLatin1String{"sticky"};
            hud.show(arguments[i + 1].toStdString(),
                     good ? "checkmark.circle.fill" : "exclamationmark.triangle", good, sticky);
        });
    }
    return QApplication::exec();
}
