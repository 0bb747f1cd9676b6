// bench_Stalls idle|send|banner: prints the longest gap between two turns of the window thread's
// event loop, in ms, followed by the processor time that the thread took in that gap, in ms, and
// the number of items sent. Meanwhile the program is idle, or sends the clipboard and shows how
// that went, or shows the first banner of its life; the other two have shown one before.
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

QCoro::Task<> measure(bench::RunningProgram& program, std::string_view mode) {
    Clock& clock = program.services.platform().clock;
    Store& store = program.store;
    if (mode != "banner") program.banner.show("Ready", "checkmark.circle.fill", true, false);
    co_await sleep(clock, 400ms);
    const std::size_t before = store.history().size();
    const Pulse pulse;
    if (mode == "send") co_await store.sendClipboard("shortcut");
    if (mode == "banner") program.banner.show("Ready", "checkmark.circle.fill", true, false);
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
    bench::RunningProgram program{std::move(pasteboard)};
    QTimer::singleShot(0, &program.store, [&] { measure(program, argv[1]); });
    return QApplication::exec();
}
