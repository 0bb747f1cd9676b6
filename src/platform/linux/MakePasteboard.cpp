#include "platform/linux/MakePasteboard.h"

#include "platform/linux/X11Pasteboard.h"

#include <QPromise>

#include <utility>

namespace quillon {

namespace {

class EmptyPasteboard final : public Pasteboard {
public:
    [[nodiscard]] std::uint64_t changeCount() const override { return 0; }
    [[nodiscard]] QFuture<std::vector<std::string>> formats() override {
        return finished(std::vector<std::string>{});
    }
    [[nodiscard]] QFuture<std::optional<QByteArray>> data(std::string /*format*/) override {
        return finished(std::optional<QByteArray>{});
    }

private:
    template <typename T>
    static QFuture<T> finished(T value) {
        QPromise<T> promise;
        promise.start();
        promise.addResult(std::move(value));
        promise.finish();
        return promise.future();
    }
};

} // namespace

std::unique_ptr<Pasteboard> makePasteboard() {
    if (auto pasteboard = X11Pasteboard::open(nullptr)) return pasteboard;
    return std::make_unique<EmptyPasteboard>();
}

} // namespace quillon
