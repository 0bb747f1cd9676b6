#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <QtGlobal>

namespace quillon {

/// What a command says and asks, wherever whoever gave it sits.
class Console {
public:
    virtual ~Console() = default;

    /// One line of output or of error output.
    virtual void print(std::string_view line) = 0;
    virtual void printError(std::string_view line) = 0;
    /// Text with line breaks of its own.
    virtual void printText(std::string_view text) = 0;

    /// What was typed, or else came on standard input, for `prompt`, without being shown; none when
    /// nothing came.
    [[nodiscard]] virtual std::optional<std::string> readSecret(std::string_view prompt) = 0;

    /// How far something has come, in bytes; `activity` is what is done, as in "Sending…".
    virtual void progress(std::string_view activity, qint64 done, qint64 total) = 0;
    /// It is over: progress that still comes is not shown.
    virtual void endProgress() = 0;
};

} // namespace quillon
