#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <QtGlobal>

/// Standard input and output as the command line uses them. All text is UTF-8.
namespace quillon::Terminal {

/// The text with control characters replaced (tabs stay), which a file name can hold: nothing that
/// is printed may drive the terminal.
[[nodiscard]] std::string harmless(std::string_view text);

/// One line of output or of error output, made harmless.
void print(std::string_view line);
void printError(std::string_view line);
/// Text with line breaks of its own, as it is.
void printText(std::string_view text);
void printErrorText(std::string_view text);

/// The first line of standard input; asked for with `prompt` and without echo on a terminal. None
/// when nothing comes.
[[nodiscard]] std::optional<std::string> readSecret(std::string_view prompt);

/// One line on a terminal that tells how much of a transfer is done; nothing elsewhere.
class Progress {
public:
    /// `what` is on its way, as in "Sending…".
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
