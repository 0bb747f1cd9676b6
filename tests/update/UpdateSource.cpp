#include "update/UpdateSource.h"

namespace quillon::test {

void UpdateSource::stall(RawServer::Connection& connection, const std::string& body) {
    connection.send("HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(body.size()) +
                    "\r\n\r\n" + body.front());
    connection.awaitEnd();
}

UpdateSource::UpdateSource()
    : server_{[this](RawServer::Connection& connection) { serve(connection); }} {}

void UpdateSource::publish(const std::string& version, const std::string& archive) {
    item_ = {.version = version,
             .shortVersion = version,
             .notes = "What is new",
             .url = server_.url("/archive"),
             .length = static_cast<qint64>(archive.size()),
             .signature = maker.sign(archive)};
    const std::lock_guard lock{mutex_};
    archive_ = archive;
    feed_ = feedXml(itemXml(item_));
}

void UpdateSource::answerFeeds(Answer answer) {
    const std::lock_guard lock{mutex_};
    feedAnswer_ = std::move(answer);
}

void UpdateSource::answerArchives(Answer answer) {
    const std::lock_guard lock{mutex_};
    archiveAnswer_ = std::move(answer);
}

void UpdateSource::serve(RawServer::Connection& connection) {
    const std::string request = connection.request();
    if (request.empty()) return;
    const bool wantsFeed = request.find("/feed.xml") != std::string::npos;
    std::unique_lock lock{mutex_};
    const Answer answer = wantsFeed ? feedAnswer_ : archiveAnswer_;
    const std::string body = wantsFeed ? feed_ : archive_;
    lock.unlock();
    answer(connection, body);
}

} // namespace quillon::test
