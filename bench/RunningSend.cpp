// bench_RunningSend ROUNDS: sends the text on the clipboard that often from one running program,
// and prints how long each send took, in ms, a line each. The first goes before and opens the
// connection.
#include "bench/RunningProgram.h"

#include <QApplication>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

using namespace quillon;

QCoro::Task<> sendRepeatedly(Store& store, int rounds) {
    using Milliseconds = std::chrono::duration<double, std::milli>;
    co_await store.sendClipboard(Trigger::shortcut);
    for (int round = 0; round < rounds; ++round) {
        const auto start = std::chrono::steady_clock::now();
        co_await store.sendClipboard(Trigger::shortcut);
        const Milliseconds took = std::chrono::steady_clock::now() - start;
        std::printf("%.3f\n", took.count());
    }
    const auto sends = static_cast<std::size_t>(rounds) + 1;
    QCoreApplication::exit(bench::newestWereSent(store, sends) ? EXIT_SUCCESS : EXIT_FAILURE);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) return EXIT_FAILURE;
    bench::RunningProgram program;
    Store& store = program.core.store;
    QTimer::singleShot(0, &store, [&] { sendRepeatedly(store, std::atoi(argv[1])); });
    return QApplication::exec();
}
