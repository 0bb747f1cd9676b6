#include "platform/linux/QuitSignals.h"

#include <array>
#include <csignal>
#include <utility>

#include <sys/eventfd.h>
#include <unistd.h>

namespace quillon {

namespace {

constexpr std::array endings{SIGTERM, SIGINT, SIGHUP};

/// Where the handler finds it.
int bell = -1;

void ring(int /*signal*/) {
    eventfd_write(bell, 1);
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
    for (const int ending : endings)
        std::signal(ending, ring);
}

QuitSignals::~QuitSignals() {
    for (const int ending : endings)
        std::signal(ending, SIG_DFL);
    notifier_.reset();
    ::close(std::exchange(bell, -1));
}

} // namespace quillon
