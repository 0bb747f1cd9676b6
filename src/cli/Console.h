#pragma once

#include <QByteArray>
#include <QFuture>

#include <optional>
#include <string>
#include <string_view>

namespace quillon {

/// Where a command prints and reads: a terminal of this process, or another process.
class Console {
public:
    virtual ~Console() = default;

    /// Prints one line to standard output or standard error.
    virtual void print(std::string_view line) = 0;
    virtual void printError(std::string_view line) = 0;
    /// Prints a line to standard error that is of use only while the command works.
    virtual void notice(std::string_view line) = 0;
    /// Prints text that has its own line breaks.
    virtual void printText(std::string_view text) = 0;
    /// Does the same at once, while the command works.
    virtual void printNow(std::string_view text) = 0;

    /// Asks for a line with `prompt` and reads it without showing it; none when nothing came.
    [[nodiscard]] virtual std::optional<std::string> readSecret(std::string_view prompt) = 0;

    /// What standard input held when the command was given, or the first `limit` bytes of it; none
    /// when it cannot be read. Of use to commands that say that they read it.
    [[nodiscard]] virtual QFuture<std::optional<QByteArray>> readInput(qsizetype limit) = 0;

    /// Tells how many bytes of a transfer are done; `activity` names it, as in "Sending…".
    virtual void progress(std::string_view activity, qint64 done, qint64 total) = 0;
    /// Ends the display of progress; later progress is not shown.
    virtual void endProgress() = 0;
};

} // namespace quillon
