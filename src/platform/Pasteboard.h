#pragma once

#include <QByteArray>
#include <QFuture>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// How the content of the clipboard is reached.
enum class ClipboardWay {
    extDataControl, ///< Wayland's ext-data-control-v1
    wlrDataControl, ///< Wayland's wlr-data-control-unstable-v1
    x11,            ///< the CLIPBOARD selection of an X server, such as Xwayland
    none,           ///< not at all: the desktop offers none of these
};

/// The clipboard that all programs of the desktop share, as its owner offers it: one content in
/// several formats. Reading never blocks the calling thread.
class Pasteboard {
public:
    virtual ~Pasteboard() = default;

    /// May change when the display goes away or comes back.
    [[nodiscard]] virtual ClipboardWay way() const = 0;

    /// Grows whenever something new is copied, or an owner answers that did not in time, so that an
    /// unchanged clipboard need not be read again.
    [[nodiscard]] virtual std::uint64_t changeCount() const = 0;

    /// The names of the formats offered now (media types and X11 targets such as "UTF8_STRING"), in
    /// the owner's order. Empty when nothing was copied or the owner does not answer in time.
    [[nodiscard]] virtual QFuture<std::vector<std::string>> formats() = 0;

    /// The content in one format, or none when the owner does not offer it or does not answer in
    /// time.
    [[nodiscard]] virtual QFuture<std::optional<QByteArray>> data(std::string format) = 0;
};

/// A clipboard that never holds anything, used where the desktop has none.
class EmptyPasteboard final : public Pasteboard {
public:
    [[nodiscard]] ClipboardWay way() const override { return ClipboardWay::none; }
    [[nodiscard]] std::uint64_t changeCount() const override { return 0; }
    [[nodiscard]] QFuture<std::vector<std::string>> formats() override {
        return QtFuture::makeReadyFuture(std::vector<std::string>{});
    }
    [[nodiscard]] QFuture<std::optional<QByteArray>> data(std::string /*format*/) override {
        return QtFuture::makeReadyFuture(std::optional<QByteArray>{});
    }
};

} // namespace quillon
