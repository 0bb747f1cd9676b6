#pragma once

#include "cli/Console.h"
#include "cli/Terminal.h"

#include <memory>

namespace quillon {

/// The console of this process: standard input and output.
class TerminalConsole final : public Console {
public:
    void print(std::string_view line) override { Terminal::print(line); }
    void printError(std::string_view line) override { Terminal::printError(line); }
    void notice(std::string_view line) override { Terminal::printError(line); }
    void printText(std::string_view text) override { Terminal::printText(text); }
    /// Ends the process when there is nobody who reads.
    void printNow(std::string_view text) override;
    [[nodiscard]] QFuture<std::optional<QByteArray>> readInput(qsizetype limit) override;
    [[nodiscard]] std::optional<std::string> readSecret(std::string_view prompt) override {
        return Terminal::readSecret(prompt);
    }
    /// Shows a line of progress once the transfer has taken 0.7 s.
    void progress(std::string_view activity, qint64 done, qint64 total) override;
    void endProgress() override;

private:
    /// Shared with the timer that shows the line.
    std::shared_ptr<Terminal::Progress> line_;
    bool ended_ = false;
};

} // namespace quillon
