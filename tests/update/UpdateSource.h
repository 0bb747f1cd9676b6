#pragma once

#include "support/RawServer.h"

#include <QByteArray>

#include <atomic>
#include <filesystem>
#include <mutex>
#include <string>

namespace quillon::test {

/// An application folder like the real one, whose program is a script that tells its version.
void writeApplication(const std::filesystem::path& folder, const std::string& version);

/// The makers' side of updates: a key pair, and a feed and archives on the loopback interface.
class UpdateSource {
public:
    /// Keeps archives in `folder`.
    explicit UpdateSource(std::filesystem::path folder);

    /// The base64 form of the public key.
    [[nodiscard]] std::string publicKey() const;
    [[nodiscard]] std::string feedUrl() const { return server_.url("/feed.xml"); }

    /// Lets the feed offer this version alone, with an archive of it.
    void publish(const std::string& version);
    /// The next archives come with a signature of other bytes.
    void signWrongly() { signsWrongly_ = true; }
    /// The feed and archives are not there.
    void takeOffline(bool offline) { offline_ = offline; }
    /// Archives come to a halt after their first byte.
    void stallArchives(bool stall) { stalls_ = stall; }

private:
    void serve(RawServer::Connection& connection);
    [[nodiscard]] std::string sign(const QByteArray& bytes) const;

    std::filesystem::path folder_;
    QByteArray publicKey_;
    QByteArray secretKey_;
    bool signsWrongly_ = false;
    std::atomic<bool> offline_ = false;
    std::atomic<bool> stalls_ = false;
    std::mutex mutex_; ///< guards what the server's threads read
    std::string feed_;
    std::string archive_;
    RawServer server_;
};

} // namespace quillon::test
