#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <QtGlobal>

/// Standard input and output as the command line uses them. All text is UTF-8.
namespace quillon::Terminal {

/// The text with control characters other than tabs replaced, so that nothing that is printed (file
/// names can hold them) drives the terminal.
[[nodiscard]] std::string harmless(std::string_view text);

/// How many columns the text takes: two for each East Asian character that is wide (Unicode's annex
/// 11), one for each other. Meant for words of translations.
[[nodiscard]] std::size_t cells(std::string_view text);

/// Prints one line to standard output or standard error, made harmless.
void print(std::string_view line);
void printError(std::string_view line);
/// Prints text that has its own line breaks, unchanged.
void printText(std::string_view text);
void printErrorText(std::string_view text);

/// The exit code of a command that ended with this one: 1, after a sentence, when something of what
/// it printed to standard output could not be written.
[[nodiscard]] int settled(int exitCode);

/// Ends the process with what was printed, and nothing static destroyed: work may have left threads
/// behind, such as Qt's for the bus, which would find its register of types gone.
[[noreturn]] void exitNow(int exitCode);

/// Reads the first line of standard input; on a terminal it shows `prompt` and hides what is typed.
/// None when nothing comes.
[[nodiscard]] std::optional<std::string> readSecret(std::string_view prompt);

/// A line that tells how much of a transfer is done. It is only shown on a terminal.
class Progress {
public:
    /// `what` names the transfer, as in "Sending…".
    explicit Progress(std::string_view what);

    /// Sizes in bytes. Remembered until the line is shown.
    void update(qint64 done, qint64 total);
    /// Shows the line from now on.
    void show();
    /// Takes the line away for good.
    void end();

private:
    enum class State { waiting, shown, ended };

    void draw() const;

    std::string what_;
    bool terminal_;
    State state_ = State::waiting;
    qint64 done_ = 0;
    qint64 total_ = 0;
};

} // namespace quillon::Terminal
