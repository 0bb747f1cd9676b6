#pragma once

#include "platform/Pasteboard.h"
#include "platform/linux/pasteboard/Bell.h"

#include <chrono>
#include <functional>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace quillon {

struct ReadingLimits {
    /// How long all questions since formats() together wait for an owner that gives nothing. Each
    /// byte starts the time anew. After it the owner counts as silent: no question is put to it
    /// until it changes, or answers after all.
    std::chrono::milliseconds patience{1000};
    /// After this time, nothing more of a large answer is waited for, and the owner counts as
    /// silent.
    std::chrono::milliseconds transfer{30'000};
    /// A larger answer counts as none, in bytes.
    qsizetype size = qsizetype{256} * 1024 * 1024;
};

/// What a reader has of the pasteboard on whose thread it works.
struct ReaderHost {
    const Bell& bell; ///< ends each of the reader's sleeps
    /// Once requested, with the bell rung, the present question and every later one end.
    std::stop_token stop;
    /// To be called each time that something is copied, the owner goes away, or one answers that
    /// counted as silent.
    std::function<void()> changed;
    ReadingLimits limits;
};

/// Asks the clipboard's owner for its content, in the way of one kind of display. Works on one
/// thread, which each question blocks until it is answered, given up or stopped.
class ClipboardReader {
public:
    virtual ~ClipboardReader() = default;

    /// None while the display has not said yet whether it lets the clipboard be read.
    [[nodiscard]] virtual ClipboardWay way() const = 0;

    /// False once the display is gone, or lets nobody read its clipboard any more; it stays so.
    [[nodiscard]] virtual bool alive() const = 0;

    /// The names of the formats that the owner offers, in its order; empty when there is no answer.
    /// Begins a reading.
    [[nodiscard]] virtual std::vector<std::string> formats() = 0;

    /// The content in this format; none when refused or not answered, or when the answer is of a
    /// wrong type or too large.
    [[nodiscard]] virtual std::optional<QByteArray> data(const std::string& format) = 0;

    /// Handles everything that has arrived. Call it between questions.
    virtual void handleEvents() = 0;

    /// Sends what is buffered and sleeps until something arrives, or the bell. Handle events first:
    /// those that have arrived do not end the sleep.
    virtual void sleep() = 0;
};

} // namespace quillon
