#pragma once

#include "platform/Pasteboard.h"

#include <QPromise>

#include <algorithm>
#include <functional>
#include <map>
#include <utility>

namespace quillon::test {

/// A clipboard that holds what a test puts on it, and counts how often each format is read.
class FakePasteboard final : public Pasteboard {
public:
    using Content = std::vector<std::pair<std::string, std::optional<QByteArray>>>;

    /// A format without bytes is offered and then refused.
    void copy(Content content) {
        content_ = std::move(content);
        ++changes_;
    }

    [[nodiscard]] ClipboardWay way() const override { return reachedBy; }
    [[nodiscard]] std::uint64_t changeCount() const override { return changes_; }

    [[nodiscard]] QFuture<std::vector<std::string>> formats() override {
        std::vector<std::string> names;
        for (const auto& [name, bytes] : content_)
            names.push_back(name);
        return QtFuture::makeReadyFuture(std::move(names));
    }

    [[nodiscard]] QFuture<std::optional<QByteArray>> data(std::string format) override {
        ++reads[format];
        if (beforeData) beforeData(format);
        if (hesitates) {
            held_.emplace_back().start();
            return held_.back().future();
        }
        const auto found = std::find_if(content_.begin(), content_.end(),
                                        [&](const auto& entry) { return entry.first == format; });
        return QtFuture::makeReadyFuture(found == content_.end() ? std::nullopt : found->second);
    }

    /// Answers the reads that were left open, as an owner does that gave up: with nothing.
    void giveUp() {
        for (auto& promise : std::exchange(held_, {})) {
            promise.addResult(std::nullopt);
            promise.finish();
        }
    }

    ClipboardWay reachedBy = ClipboardWay::x11;
    std::map<std::string, int> reads;
    /// Bytes that are asked for stay out until giveUp().
    bool hesitates = false;
    /// Called with the format before its bytes are looked up.
    std::function<void(const std::string&)> beforeData;

private:
    Content content_;
    std::vector<QPromise<std::optional<QByteArray>>> held_;
    std::uint64_t changes_ = 0;
};

} // namespace quillon::test
