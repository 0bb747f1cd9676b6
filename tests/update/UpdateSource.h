#pragma once

#include "support/RawServer.h"
#include "update/Makers.h"

#include <mutex>

namespace quillon::test {

/// The makers' server on the loopback interface: a feed, and the archive that it offers.
class UpdateSource {
public:
    [[nodiscard]] std::string feedUrl() const { return server_.url("/feed.xml"); }

    /// Lets the feed offer this version alone, with these bytes as its archive.
    void publish(const std::string& version, const std::string& archive) {
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
    void publish(const std::string& version) { publish(version, archiveOf(application(version))); }
    /// What the feed offers.
    [[nodiscard]] const FeedItem& item() const { return item_; }

    /// What requests are answered with; those for archives may also come to a halt.
    std::atomic<int> feedStatus = 200;
    std::atomic<int> archiveStatus = 200;
    std::atomic<bool> stalls = false;

    const Maker maker;

private:
    void serve(RawServer::Connection& connection) {
        const std::string request = connection.request();
        const bool wantsFeed = request.find("/feed.xml") != std::string::npos;
        if (!wantsFeed && stalls) return connection.awaitEnd();
        const std::lock_guard lock{mutex_};
        connection.reply(wantsFeed ? feedStatus : archiveStatus, wantsFeed ? feed_ : archive_);
    }

    FeedItem item_;
    std::mutex mutex_; ///< guards what the server's threads read
    std::string feed_;
    std::string archive_;
    RawServer server_{[this](RawServer::Connection& connection) { serve(connection); }};
};

} // namespace quillon::test
