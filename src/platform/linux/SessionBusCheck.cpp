#include "platform/linux/SessionBusCheck.h"

#include "base/Environment.h"
#include "platform/linux/Application.h"

#include <QCoreApplication>
#include <QDBusConnection>

#include <csignal>
#include <cstdlib>
#include <thread>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon {

namespace {

constexpr std::chrono::milliseconds interval{2};

/// Ends once the bus has greeted it, or turned it away.
[[noreturn]] void greet() {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    {
        const auto application = makeApplication<QCoreApplication>();
        static_cast<void>(QDBusConnection::sessionBus().isConnected());
    }
    ::_exit(0);
}

} // namespace

bool sessionBusAnswers(std::chrono::milliseconds patience) {
    if (!hasSessionBus()) return true;
    // A process can be ended while it waits for the bus; of a thread, Qt's would hang with it.
    const pid_t child = ::fork();
    if (child < 0) return true;
    if (child == 0) greet();
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (::waitpid(child, nullptr, WNOHANG) == 0) {
        if (std::chrono::steady_clock::now() >= deadline) {
            ::kill(child, SIGKILL);
            ::waitpid(child, nullptr, 0);
            return false;
        }
        std::this_thread::sleep_for(interval);
    }
    return true;
}

void doWithoutSessionBus() {
    // Of this kind of address, the libraries for D-Bus know none, and say so at once.
    ::setenv("DBUS_SESSION_BUS_ADDRESS", "disabled:", 1);
}

} // namespace quillon
