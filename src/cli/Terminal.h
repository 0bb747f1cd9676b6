#pragma once

#include <chrono>
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

/// Shows how much of an upload has gone out, on a terminal alone and after a first while.
class Progress {
public:
    explicit Progress(std::chrono::milliseconds patience);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// Sizes in bytes.
    void show(qint64 sent, qint64 total);
    /// Takes the line away again.
    void clear();

private:
    std::chrono::steady_clock::time_point from_;
    bool terminal_;
    bool shown_ = false;
};

} // namespace quillon::Terminal
