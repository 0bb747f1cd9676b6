#include "update/UpdateSource.h"

#include <QByteArray>

namespace quillon::test {

UpdateSource::UpdateSource()
    : server_{[this](RawServer::Connection& connection) { serve(connection); }} {}

void UpdateSource::publish(const std::string& version) {
    const std::string archive = archiveOf(application(version));
    const Signature signature = maker_.sign(signsWrongly_ ? archive + "." : archive);
    const QByteArray raw{reinterpret_cast<const char*>(signature.data()),
                         static_cast<qsizetype>(signature.size())};
    const std::lock_guard lock{mutex_};
    archive_ = archive;
    feed_ = R"(<rss version="2.0" xmlns:quillon="urn:dev.vostrel.quillon:update"><channel><item>)"
            "<quillon:version>" +
            version + "</quillon:version><description>What is new</description><enclosure url='" +
            server_.url("/archive") + "' length='" + std::to_string(archive.size()) +
            "' type='application/zstd' quillon:edSignature='" + raw.toBase64().toStdString() +
            "'/></item></channel></rss>";
}

void UpdateSource::serve(RawServer::Connection& connection) {
    for (std::string request; !(request = connection.request()).empty();) {
        const bool wantsFeed = request.find("/feed.xml") != std::string::npos;
        std::unique_lock lock{mutex_};
        const std::string body = wantsFeed ? feed_ : archive_;
        lock.unlock();
        if (offline_) {
            connection.reply(503, "");
        } else if (!wantsFeed && stalls_) {
            connection.send("HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(body.size()) +
                            "\r\n\r\n" + body.front());
            connection.awaitEnd();
        } else {
            connection.reply(200, body);
        }
    }
}

} // namespace quillon::test
