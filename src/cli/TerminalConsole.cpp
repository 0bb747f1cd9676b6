#include "cli/TerminalConsole.h"

#include <QCoreApplication>
#include <QTimer>

#include <chrono>
#include <utility>

namespace quillon {

namespace {

/// A shorter upload shows no progress.
constexpr std::chrono::milliseconds progressPatience{700};

} // namespace

void TerminalConsole::uploading(qint64 sent, qint64 total) {
    progress_->update(sent, total);
    if (std::exchange(begun_, true)) return;
    QTimer::singleShot(progressPatience, QCoreApplication::instance(),
                       [progress = progress_] { progress->show(); });
}

} // namespace quillon
