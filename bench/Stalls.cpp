// bench_Stalls idle|send|banner: prints the longest gap between two turns of the window thread's
// event loop, in ms, then the longest one less the time in it that the thread only waited for a
// processor, and the number of items sent. Meanwhile the program is idle, or sends the clipboard
// and shows how that went, or shows the first banner of its life; the other two have shown one
// before.
#include "bench/Pulse.h"
#include "bench/RunningProgram.h"
#include "platform/Sleep.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

using namespace quillon;
using namespace std::chrono_literals;

QCoro::Task<> measure(bench::RunningProgram& program, std::string_view mode) {
    Clock& clock = program.services.platform().clock;
    Store& store = program.core.store;
    const BannerMessage ready{.text = "Ready", .symbol = "checkmark.circle.fill"};
    if (mode != "banner") program.core.banner.show(ready);
    co_await sleep(clock, 400ms);
    const std::size_t before = store.history().size();
    const bench::Pulse pulse;
    if (mode == "send") {
        co_await store.sendClipboard(Trigger::shortcut);
    }
    if (mode == "banner") program.core.banner.show(ready);
    co_await sleep(clock, 1000ms);
    const std::size_t items = store.history().size() - before;
    const bool nothingRead = program.core.banner.problem() == "The clipboard is empty";
    std::printf("%.2f %.2f %zu\n", pulse.longestGap().count(), pulse.longestOwnGap().count(),
                items);
    const bool asExpected =
        mode == "send" && items == 0 ? nothingRead
        : mode == "banner"
            ? std::ranges::any_of(QApplication::topLevelWidgets(), &QWidget::isVisible)
            : bench::newestWereSent(store, items);
    QCoreApplication::exit(asExpected ? EXIT_SUCCESS : EXIT_FAILURE);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) return EXIT_FAILURE;
    bench::RunningProgram program;
    QTimer::singleShot(0, &program.core.store, [&] { measure(program, argv[1]); });
    return QApplication::exec();
}
