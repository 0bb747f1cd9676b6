#include "platform/linux/x11/X11Pasteboard.h"

#include <QPromise>

#include <utility>

namespace quillon {

std::unique_ptr<X11Pasteboard> X11Pasteboard::open(const char* display) {
    auto connection = X11Connection::open(display);
    if (!connection) return nullptr;
    std::unique_ptr<X11Pasteboard> pasteboard{new X11Pasteboard{std::move(connection)}};
    if (!pasteboard->reader_.ready()) return nullptr;
    auto& self = *pasteboard;
    self.thread_ = std::jthread{[&self](const std::stop_token& stop) { self.run(stop); }};
    return pasteboard;
}

X11Pasteboard::X11Pasteboard(std::unique_ptr<X11Connection> connection)
    : connection_{std::move(connection)},
      reader_{*connection_, [this] { ++changes_; }} {}

X11Pasteboard::~X11Pasteboard() {
    thread_.request_stop();
    connection_->ring();
    if (thread_.joinable()) thread_.join();
}

QFuture<std::vector<std::string>> X11Pasteboard::formats() {
    return request<std::vector<std::string>>(
        [](SelectionReader& reader) { return reader.formats(); });
}

QFuture<std::optional<QByteArray>> X11Pasteboard::data(std::string format) {
    return request<std::optional<QByteArray>>(
        [format = std::move(format)](SelectionReader& reader) { return reader.data(format); });
}

template <typename T, typename Read>
QFuture<T> X11Pasteboard::request(Read read) {
    const auto promise = std::make_shared<QPromise<T>>();
    promise->start();
    {
        const std::lock_guard lock{mutex_};
        jobs_.push([this, promise, read = std::move(read)] {
            promise->addResult(read(reader_));
            promise->finish();
        });
    }
    connection_->ring();
    return promise->future();
}

std::optional<X11Pasteboard::Job> X11Pasteboard::nextJob() {
    const std::lock_guard lock{mutex_};
    if (jobs_.empty()) return {};
    std::optional<Job> job{std::move(jobs_.front())};
    jobs_.pop();
    return job;
}

void X11Pasteboard::run(const std::stop_token& stop) {
    reader_.stopOn(stop);
    for (bool alive = true;;) {
        reader_.handleEvents();
        if (alive && !connection_->alive()) {
            alive = false;
            ++changes_; // the server is gone, so the clipboard is empty now
        }
        // Without a server, or once stopped, the reader has an empty answer at once.
        if (const auto job = nextJob()) {
            (*job)();
        } else if (stop.stop_requested()) {
            return;
        } else {
            connection_->sleep({});
        }
    }
}

} // namespace quillon
