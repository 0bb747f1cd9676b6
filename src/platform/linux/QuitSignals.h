#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace quillon {

/// Turns the signals that ask a process to end (SIGTERM, SIGINT, SIGHUP) into a call on the main
/// thread, so that the program ends its normal way. One for the process, for as long as it runs.
class QuitSignals {
public:
    explicit QuitSignals(std::function<void()> quit);
    QuitSignals(const QuitSignals&) = delete;
    QuitSignals& operator=(const QuitSignals&) = delete;
    /// Restores the default: the signals end the process at once.
    ~QuitSignals();

private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace quillon
