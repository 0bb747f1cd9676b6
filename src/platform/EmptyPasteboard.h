#pragma once

#include "platform/Pasteboard.h"

namespace quillon {

/// A clipboard that never holds anything, used where the desktop has none.
class EmptyPasteboard final : public Pasteboard {
public:
    [[nodiscard]] std::uint64_t changeCount() const override { return 0; }
    [[nodiscard]] QFuture<std::vector<std::string>> formats() override {
        return QtFuture::makeReadyFuture(std::vector<std::string>{});
    }
    [[nodiscard]] QFuture<std::optional<QByteArray>> data(std::string /*format*/) override {
        return QtFuture::makeReadyFuture(std::optional<QByteArray>{});
    }
};

} // namespace quillon
