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
        jobs_.push([promise, read = std::move(read)](SelectionReader* reader) {
            promise->addResult(reader != nullptr ? read(*reader) : T{});
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
    while (!stop.stop_requested() && connection_->alive()) {
        reader_.handleEvents();
        if (const auto job = nextJob()) {
            (*job)(&reader_);
        } else {
            connection_->sleep({});
        }
    }
    ++changes_; // the server is gone, so the clipboard is empty now
    while (!stop.stop_requested()) {
        while (const auto job = nextJob())
            (*job)(nullptr);
        connection_->sleep({});
    }
    while (const auto job = nextJob())
        (*job)(nullptr);
}

} // namespace quillon
