#pragma once

#include "support/RawServer.h"
#include "update/Makers.h"

#include <functional>
#include <mutex>
#include <string>

namespace quillon::test {

/// The makers' server on the loopback interface: a feed, and the archive that it offers.
class UpdateSource {
public:
    /// Answers one request, for which `body` is meant.
    using Answer = std::function<void(RawServer::Connection&, const std::string& body)>;

    /// The usual answer: the body that is meant.
    static void give(RawServer::Connection& connection, const std::string& body) {
        connection.reply(200, body);
    }
    static Answer reply(int status) {
        return [=](RawServer::Connection& connection, const std::string&) {
            connection.reply(status, {});
        };
    }
    /// Comes to a halt after the first byte.
    static void stall(RawServer::Connection& connection, const std::string& body);

    UpdateSource();

    [[nodiscard]] std::string feedUrl() const { return server_.url("/feed.xml"); }

    /// Lets the feed offer this version alone, with these bytes as its archive.
    void publish(const std::string& version, const std::string& archive);
    void publish(const std::string& version) { publish(version, archiveOf(application(version))); }
    /// What the feed offers.
    [[nodiscard]] const FeedItem& item() const { return item_; }

    void answerFeeds(Answer answer);
    void answerArchives(Answer answer);

    const Maker maker;

private:
    void serve(RawServer::Connection& connection);

    FeedItem item_;
    std::mutex mutex_; ///< guards what the server's threads read
    std::string feed_;
    std::string archive_;
    Answer feedAnswer_ = give;
    Answer archiveAnswer_ = give;
    RawServer server_;
};

} // namespace quillon::test
