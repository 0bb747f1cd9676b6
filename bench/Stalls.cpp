// bench_Stalls idle|send: prints the longest gap between two turns of the window thread's event
// loop while it is idle for a second, or sends the clipboard and shows its banners; in ms, followed
// by the processor time that the thread took in that gap, in ms, and the number of items sent.
#include "bench/RunningProgram.h"
#include "platform/Sleep.h"

#include <QApplication>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string_view>

namespace {

using namespace quillon;
using namespace std::chrono_literals;
using Milliseconds = std::chrono::duration<double, std::milli>;

Milliseconds threadTime() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds{time.tv_sec} + std::chrono::nanoseconds{time.tv_nsec};
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
    [[nodiscard]] Milliseconds timeInLongestGap() const { return timeInLongest_; }

private:
    void beat() {
        const auto now = std::chrono::steady_clock::now();
        const Milliseconds time = threadTime();
        if (const Milliseconds gap = now - last_; gap > longest_) {
            longest_ = gap;
            timeInLongest_ = time - timeAtLast_;
        }
        last_ = now;
        timeAtLast_ = time;
    }

    QTimer timer_;
    std::chrono::steady_clock::time_point last_ = std::chrono::steady_clock::now();
    Milliseconds timeAtLast_ = threadTime();
    Milliseconds longest_{};
    Milliseconds timeInLongest_{};
};

QCoro::Task<> measure(bench::RunningProgram& program, bool send) {
    Clock& clock = program.services.platform().clock;
    Store& store = program.store;
    co_await sleep(clock, 300ms);
    const std::size_t before = store.history().size();
    const Pulse pulse;
    if (send) co_await store.sendClipboard("shortcut");
    co_await sleep(clock, 1000ms);
    const std::size_t items = store.history().size() - before;
    std::printf("%.2f %.2f %zu\n", pulse.longestGap().count(), pulse.timeInLongestGap().count(),
                items);
    QCoreApplication::exit(bench::newestWereSent(store, items) ? EXIT_SUCCESS : EXIT_FAILURE);
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application{argc, argv};
    QApplication::setQuitOnLastWindowClosed(false);
    auto pasteboard = X11Pasteboard::open(nullptr);
    if (argc != 2 || !pasteboard) return EXIT_FAILURE;
    const bool send = std::string_view{argv[1]} == "send";
    bench::RunningProgram program{std::move(pasteboard)};
    QTimer::singleShot(0, &program.store, [&] { measure(program, send); });
    return QApplication::exec();
}
