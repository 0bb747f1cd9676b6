#pragma once

#include "support/RawServer.h"
#include "update/Makers.h"

#include <atomic>
#include <mutex>
#include <string>

namespace quillon::test {

/// The makers' server on the loopback interface: a feed, and the archive that it offers.
class UpdateSource {
public:
    UpdateSource();

    [[nodiscard]] std::string publicKey() const { return maker_.publicKey(); }
    [[nodiscard]] std::string feedUrl() const { return server_.url("/feed.xml"); }

    /// Lets the feed offer this version alone, with an archive of it.
    void publish(const std::string& version);
    /// The next archives come with a signature of other bytes.
    void signWrongly() { signsWrongly_ = true; }
    /// The feed and archives are not there.
    void takeOffline(bool offline) { offline_ = offline; }
    /// Archives come to a halt after their first byte.
    void stallArchives() { stalls_ = true; }

private:
    void serve(RawServer::Connection& connection);

    Maker maker_;
    bool signsWrongly_ = false;
    std::atomic<bool> offline_ = false;
    std::atomic<bool> stalls_ = false;
    std::mutex mutex_; ///< guards what the server's threads read
    std::string feed_;
    std::string archive_;
    RawServer server_;
};

} // namespace quillon::test
