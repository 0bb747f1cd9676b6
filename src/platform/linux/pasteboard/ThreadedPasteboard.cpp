#include "platform/linux/pasteboard/ThreadedPasteboard.h"

#include <QPromise>

#include <utility>

namespace quillon {

ThreadedPasteboard::ThreadedPasteboard(Opener open, ReadingLimits limits)
    : host_{bell_, stop_.get_token(), [this] { ++changes_; }, limits},
      open_{std::move(open)} {
    openReader();
    thread_ = std::thread{[this] { run(); }};
}

ThreadedPasteboard::~ThreadedPasteboard() {
    stop_.request_stop();
    bell_.ring();
    thread_.join();
}

QFuture<std::vector<std::string>> ThreadedPasteboard::formats() {
    return request<std::vector<std::string>>(
        [](ClipboardReader& reader) { return reader.formats(); });
}

QFuture<std::optional<QByteArray>> ThreadedPasteboard::data(std::string format) {
    return request<std::optional<QByteArray>>(
        [format = std::move(format)](ClipboardReader& reader) { return reader.data(format); });
}

template <typename T, typename Read>
QFuture<T> ThreadedPasteboard::request(Read read) {
    const auto promise = std::make_shared<QPromise<T>>();
    promise->start();
    {
        const std::lock_guard lock{mutex_};
        jobs_.push([promise, read = std::move(read)](ClipboardReader* reader) {
            promise->addResult(reader != nullptr ? read(*reader) : T{});
            promise->finish();
        });
    }
    bell_.ring();
    return promise->future();
}

std::optional<ThreadedPasteboard::Job> ThreadedPasteboard::nextJob() {
    const std::lock_guard lock{mutex_};
    if (jobs_.empty()) return {};
    std::optional<Job> job{std::move(jobs_.front())};
    jobs_.pop();
    return job;
}

void ThreadedPasteboard::run() {
    for (;;) {
        followReader();
        // Without a display, or once stopped, there is an empty answer at once.
        if (const auto job = nextJob()) {
            if (!reader_ && !stop_.stop_requested()) openReader();
            (*job)(reader_.get());
        } else if (stop_.stop_requested()) {
            return;
        } else {
            sleep();
        }
    }
}

void ThreadedPasteboard::openReader() {
    reader_ = open_(host_);
    way_ = reader_ ? reader_->way() : ClipboardWay::none;
}

void ThreadedPasteboard::followReader() {
    if (!reader_) return;
    reader_->handleEvents();
    if (reader_->alive()) {
        way_ = reader_->way();
        return;
    }
    reader_.reset();
    way_ = ClipboardWay::none;
    ++changes_; // the display is gone, so the clipboard is empty now
}

void ThreadedPasteboard::sleep() {
    if (reader_) {
        reader_->sleep();
    } else {
        bell_.sleep({}, {});
    }
}

} // namespace quillon
