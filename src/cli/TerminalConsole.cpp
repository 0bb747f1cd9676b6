#include "cli/TerminalConsole.h"

#include "cli/Command.h"
#include "cli/StandardInput.h"

#include <QCoreApplication>
#include <QTimer>

#include <chrono>

#include <unistd.h>

namespace quillon {

namespace {

/// A transfer that takes less time shows no progress.
constexpr std::chrono::milliseconds progressPatience{700};

} // namespace

void TerminalConsole::printNow(std::string_view text) {
    Terminal::printText(text);
    // Nothing else would tell whoever waits for more.
    const int code = Terminal::settled(exitDone);
    if (code != exitDone) Terminal::exitNow(code);
}

QFuture<std::optional<QByteArray>> TerminalConsole::readInput(qsizetype limit) {
    return StandardInput::held(STDIN_FILENO, limit);
}

void TerminalConsole::progress(std::string_view activity, qint64 done, qint64 total) {
    if (ended_) return;
    if (!line_) {
        line_ = std::make_shared<Terminal::Progress>(activity);
        QTimer::singleShot(progressPatience, QCoreApplication::instance(),
                           [line = line_] { line->show(); });
    }
    line_->update(done, total);
}

void TerminalConsole::endProgress() {
    if (line_) line_->end();
    ended_ = true;
}

} // namespace quillon
