#include "update/UpdateSource.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <utility>

#include <sodium.h>

namespace quillon::test {

namespace {

namespace fs = std::filesystem;

void write(const fs::path& file, const std::string& content) {
    fs::create_directories(file.parent_path());
    std::ofstream{file} << content;
}

std::string read(const fs::path& file) {
    std::ostringstream content;
    content << std::ifstream{file}.rdbuf();
    return std::move(content).str();
}

unsigned char* bytes(QByteArray& array) {
    return reinterpret_cast<unsigned char*>(array.data());
}

const unsigned char* bytes(const QByteArray& array) {
    return reinterpret_cast<const unsigned char*>(array.data());
}

} // namespace

void writeApplication(const fs::path& folder, const std::string& version) {
    write(folder / "Contents/Info.plist",
          "<plist version=\"1.0\"><dict><key>CFBundleIdentifier</key>"
          "<string>dev.vostrel.quillon</string><key>CFBundleShortVersionString</key><string>" +
              version + "</string><key>CFBundleVersion</key><string>" + version +
              "</string></dict></plist>");
    const fs::path program = folder / "Contents/Linux/quillon";
    write(program, "#!/bin/sh\necho quillon " + version + "\n");
    fs::permissions(program, fs::perms::owner_all);
}

UpdateSource::UpdateSource(fs::path folder)
    : folder_{std::move(folder)},
      publicKey_{crypto_sign_PUBLICKEYBYTES, '\0'},
      secretKey_{crypto_sign_SECRETKEYBYTES, '\0'},
      server_{[this](RawServer::Connection& connection) { serve(connection); }} {
    crypto_sign_keypair(bytes(publicKey_), bytes(secretKey_));
}

std::string UpdateSource::publicKey() const {
    return publicKey_.toBase64().toStdString();
}

std::string UpdateSource::sign(const QByteArray& content) const {
    QByteArray signature{crypto_sign_BYTES, '\0'};
    crypto_sign_detached(bytes(signature), nullptr, bytes(content),
                         static_cast<unsigned long long>(content.size()), bytes(secretKey_));
    return signature.toBase64().toStdString();
}

void UpdateSource::publish(const std::string& version) {
    const fs::path place = folder_ / version;
    writeApplication(place / "Quillon.app", version);
    const std::string tar =
        "tar -cJf '" + (place / "archive").native() + "' -C '" + place.native() + "' Quillon.app";
    if (std::system(tar.c_str()) != 0) std::abort();
    const std::lock_guard lock{mutex_};
    archive_ = read(place / "archive");
    const std::string signature =
        sign(QByteArray::fromStdString(signsWrongly_ ? archive_ + "." : archive_));
    feed_ = "<rss version=\"2.0\" xmlns:quillon=\"urn:dev.vostrel.quillon:update\"><channel><item>"
            "<quillon:version>" +
            version + "</quillon:version><description>What is new</description><enclosure url=\"" +
            server_.url("/archive") + "\" length=\"" + std::to_string(archive_.size()) +
            "\" type=\"application/x-xz\" quillon:edSignature=\"" + signature +
            "\"/></item></channel></rss>";
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
