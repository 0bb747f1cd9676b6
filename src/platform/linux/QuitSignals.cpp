#include "platform/linux/QuitSignals.h"

#include <array>
#include <csignal>
#include <utility>

#include <sys/eventfd.h>
#include <unistd.h>

namespace quillon {

namespace {

constexpr std::array endings{SIGTERM, SIGINT, SIGHUP};

/// A signal handler can reach only globals.
int bell = -1;

void ring(int /*signal*/) {
    eventfd_write(bell, 1);
}

/// Leaves signals alone that the process was started to ignore, as by nohup.
void handleEndings(sighandler_t handler) {
    for (const int ending : endings) {
        if (std::signal(ending, handler) == SIG_IGN) std::signal(ending, SIG_IGN);
    }
}

} // namespace

QuitSignals::QuitSignals(std::function<void()> quit) {
    bell = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    notifier_ = std::make_unique<QSocketNotifier>(bell, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [quit = std::move(quit)] {
                         eventfd_t rung = 0;
                         eventfd_read(bell, &rung);
                         quit();
                     });
    handleEndings(ring);
}

QuitSignals::~QuitSignals() {
    handleEndings(SIG_DFL);
    notifier_.reset();
    ::close(std::exchange(bell, -1));
}

} // namespace quillon
