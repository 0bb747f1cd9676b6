// bench_Stalls idle|send|banner: prints the longest gap between two turns of the window thread's
// event loop, in ms, then the longest one less the time in it that the thread only waited for a
// processor, and the number of items sent. Meanwhile the program is idle, or sends the clipboard
// and shows how that went, or shows the first banner of its life; the other two have shown one
// before.
#include "bench/RunningProgram.h"
#include "platform/Sleep.h"

#include <QApplication>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string_view>

namespace {

using namespace quillon;
using namespace std::chrono_literals;
using Milliseconds = std::chrono::duration<double, std::milli>;

/// How long this thread has been ready to run without a processor to run on, so far. The second
/// number of the kernel's scheduler statistics, in ns.
Milliseconds timeWaited() {
    std::ifstream file{"/proc/thread-self/schedstat"};
    std::int64_t ran = 0;
    std::int64_t waited = 0;
    file >> ran >> waited;
    return std::chrono::nanoseconds{waited};
}

/// Beats each millisecond for as long as the event loop lets it.
class Pulse {
public:
    Pulse() {
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.callOnTimeout([this] { beat(); });
        timer_.start(1ms);
    }

    [[nodiscard]] Milliseconds longestGap() const { return longest_; }
    [[nodiscard]] Milliseconds longestOwnGap() const { return longestOwn_; }

private:
    void beat() {
        const auto now = std::chrono::steady_clock::now();
        const Milliseconds waited = timeWaited();
        const Milliseconds gap = now - last_;
        longest_ = std::max(longest_, gap);
        longestOwn_ = std::max(longestOwn_, gap - (waited - waitedAtLast_));
        last_ = now;
        waitedAtLast_ = waited;
    }

    QTimer timer_;
    std::chrono::steady_clock::time_point last_ = std::chrono::steady_clock::now();
    Milliseconds waitedAtLast_ = timeWaited();
    Milliseconds longest_{};
    Milliseconds longestOwn_{};
};

QCoro::Task<> measure(bench::RunningProgram& program, std::string_view mode) {
    Clock& clock = program.services.platform().clock;
    Store& store = program.store;
    if (mode != "banner") program.banner.show("Ready", "checkmark.circle.fill", true, false);
    co_await sleep(clock, 400ms);
    const std::size_t before = store.history().size();
    const Pulse pulse;
    if (mode == "send") {
        co_await store.sendClipboard("shortcut");
    }
    if (mode == "banner") program.banner.show("Ready", "checkmark.circle.fill", true, false);
    co_await sleep(clock, 1000ms);
    const std::size_t items = store.history().size() - before;
    std::printf("%.2f %.2f %zu\n", pulse.longestGap().count(), pulse.longestOwnGap().count(),
                items);
    QCoreApplication::exit(bench::newestWereSent(store, items) ? EXIT_SUCCESS : EXIT_FAILURE);
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application{argc, argv};
    QApplication::setQuitOnLastWindowClosed(false);
    auto pasteboard = X11Pasteboard::open(nullptr);
    if (argc != 2 || !pasteboard) return EXIT_FAILURE;
    bench::RunningProgram program{std::move(pasteboard)};
    QTimer::singleShot(0, &program.store, [&] { measure(program, argv[1]); });
    return QApplication::exec();
}
