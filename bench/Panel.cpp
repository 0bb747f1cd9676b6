// bench_Panel: opens the panel of the program and prints how long its first frame took, in ms, then
// that of opening it once more. Then, for each line on standard input, it watches the open panel
// for three seconds and prints the most processor time that the window thread took within one
// second, and what the panel then says is on the clipboard.
#include "bench/Pulse.h"
#include "bench/RunningProgram.h"
#include "maintenance/Updater.h"
#include "platform/Sleep.h"
#include "ui/panel/PanelView.h"
#include "ui/panel/PanelWindow.h"
#include "ui/panel/SendButton.h"

#include <QApplication>
#include <QTimer>

#include <xcb/xcb.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>

namespace {

using namespace quillon;
using namespace std::chrono_literals;

/// Waits until the X server has drawn what it was told to.
void finishDrawing() {
    auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t* const connection = x11->connection();
    std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

/// Tells of the first frame of a window after it was shown.
class FirstFrame : public QObject {
public:
    explicit FirstFrame(QWidget& window) : window_{window} { window.installEventFilter(this); }

    QCoro::Task<bench::Milliseconds> openAndMeasure(PanelWindow& panel, Clock& clock) {
        drawn_ = false;
        const auto start = std::chrono::steady_clock::now();
        panel.open({0, 0, 24, 24});
        while (!drawn_)
            co_await sleep(clock, 0ms);
        finishDrawing();
        co_return std::chrono::steady_clock::now() - start;
    }

private:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == &window_ && event->type() == QEvent::Paint) drawn_ = true;
        return false;
    }

    QWidget& window_;
    bool drawn_ = false;
};

QCoro::Task<double> busiestSecond(Clock& clock) {
    bench::Milliseconds most{};
    for (int second = 0; second < 3; ++second) {
        const bench::Milliseconds before = bench::threadTime();
        co_await sleep(clock, 1s);
        most = std::max(most, bench::threadTime() - before);
    }
    co_return most.count();
}

void print(double milliseconds) {
    std::printf("%.2f\n", milliseconds);
    std::fflush(stdout);
}

QCoro::Task<> measure(PanelWindow& panel, Clock& clock) {
    FirstFrame frame{panel};
    for (int time = 0; time < 2; ++time) {
        QCoro::Task<bench::Milliseconds> opening = frame.openAndMeasure(panel, clock);
        const bench::Milliseconds took = co_await opening;
        print(took.count());
        co_await sleep(clock, 400ms);
        if (time == 0) panel.hide();
        co_await sleep(clock, 400ms);
    }
    // Blocks between the measurements, which is when nobody looks.
    for (std::string line; std::getline(std::cin, line);) {
        QCoro::Task<double> watching = busiestSecond(clock);
        const double most = co_await watching;
        print(most);
        std::puts(qUtf8Printable(panel.findChild<SendButton*>()->accessibleDescription()));
        std::fflush(stdout);
    }
    QCoreApplication::exit(panel.isVisible() ? EXIT_SUCCESS : EXIT_FAILURE);
}

} // namespace

int main() {
    bench::RunningProgram program;
    Platform& platform = program.services.platform();
    const Updater updater{platform, program.core.analytics, {}};
    PanelWindow panel{*program.desktop.compositor, platform.workspace, [&] {
                          return std::make_unique<PanelView>(platform, program.core.store, updater,
                                                             PanelActions{});
                      }};
    QTimer::singleShot(0, &panel, [&] { measure(panel, platform.clock); });
    return QApplication::exec();
}
