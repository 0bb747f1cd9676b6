#include "platform/linux/http/CurlTransport.h"
#include "support/Await.h"
#include "support/Files.h"
#include "support/RawServer.h"

#include <QTemporaryDir>

#include <future>

namespace quillon::test {

using enum DownloadOutcome;
using Connection = RawServer::Connection;

struct CurlDownloadTest : testing::Test {
    HttpDownload downloadOf(std::string url) const {
        HttpDownload download;
        download.url = std::move(url);
        download.file = file;
        download.maximumSize = 1'000'000;
        download.inactivityTimeout = 1s;
        return download;
    }
    DownloadOutcome outcome(std::string url) {
        return await(transport.download(downloadOf(std::move(url))));
    }
    bool got(std::string url) {
        HttpRequest request;
        request.url = std::move(url);
        return await(transport.get(std::move(request))).has_value();
    }
    QTemporaryDir folder;
    std::filesystem::path file = folder.filePath(QStringLiteral("file")).toStdString();
    CurlTransport transport;
};

TEST_F(CurlDownloadTest, FetchesFromThisMachineAndTellsProgress) {
    const std::string bytes(1'000'000, 'x');
    std::promise<std::string> request;
    RawServer server{[&](Connection& connection) {
        request.set_value(connection.request());
        connection.reply(200, bytes);
    }};
    auto download = downloadOf(server.url("/a?b"));
    qint64 last = 0;
    download.progress = [&](qint64 received, qint64 total) {
        EXPECT_EQ(QThread::currentThread(), qApp->thread());
        EXPECT_GE(received, last);
        EXPECT_EQ(total, received > 0 ? 1'000'000 : total);
        last = received;
    };
    ::umask(0);
    EXPECT_EQ(await(transport.download(std::move(download))), done);
    ::umask(022);
    EXPECT_TRUE(content(file) == bytes);
    EXPECT_TRUE(waitUntil([&] { return last == 1'000'000; }));
    EXPECT_THAT(request.get_future().get(), StartsWith("GET /a?b HTTP/1.1\r\n"));
    EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms(0600));

    EXPECT_EQ(outcome(server.url()), unwritable) << "the file is there";
    EXPECT_TRUE(content(file) == bytes);
}

TEST_F(CurlDownloadTest, LeavesNothingBehindAFailure) {
    const std::string found = "HTTP/1.1 200 OK\r\n";
    const std::string moved = "HTTP/1.1 302 Found\r\nContent-Length: 1\r\nLocation: ";
    struct Case {
        const char* what;
        std::string reply;
        bool waits; ///< until the client goes away
        DownloadOutcome outcome;
    };
    const Case cases[]{
        {"announced too large", found + "Content-Length: 1000001\r\n\r\n", true, tooLarge},
        {"grown too large", found + "\r\n" + std::string(1'000'001, 'x'), true, tooLarge},
        {"truncated", found + "Content-Length: 9\r\n\r\nxx", false, failed},
        {"stalled", found + "Content-Length: 9\r\n\r\nxx", true, failed},
        {"not found", "HTTP/1.1 404 Not Found\r\nContent-Length: 1\r\n\r\nx", false, failed},
        {"redirect to plain http", moved + "http://127.0.0.1:9/\r\n\r\nx", false, failed},
        {"redirect to a file", moved + "file:///etc/passwd\r\n\r\nx", false, failed},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        RawServer server{[&](Connection& connection) {
            connection.request();
            connection.send(each.reply);
            if (each.waits) connection.awaitEnd();
        }};
        EXPECT_EQ(outcome(server.url()), each.outcome);
        EXPECT_FALSE(std::filesystem::exists(file));
    }
}

TEST_F(CurlDownloadTest, SpeaksPlainHttpToThisMachineAlone) {
    RawServer server{[](Connection& connection) {
        while (!connection.request().empty())
            connection.reply(200, "x");
    }};
    const std::string port = ":" + std::to_string(server.port()) + "/";
    EXPECT_TRUE(got("http://127.0.0.1" + port));
    EXPECT_TRUE(got("http://localhost" + port));
    const int connections = server.connections();
    for (std::string address : {"http://0.0.0.0", "http://[::]", "http://127.0.0.1@0.0.0.0"})
        EXPECT_FALSE(got(address.append(port))) << address;
    EXPECT_EQ(server.connections(), connections);
}

TEST_F(CurlDownloadTest, FollowsARedirectToHttps) {
    std::promise<std::string> hello;
    RawServer secure{[&](Connection& connection) { hello.set_value(connection.receive(3)); }};
    RawServer server{[&](Connection& connection) {
        connection.request();
        std::string url = secure.url();
        connection.reply(302, "", "Location: " + url.insert(4, 1, 's') + "\r\n");
    }};
    EXPECT_FALSE(got(server.url()));
    EXPECT_EQ(hello.get_future().get(), "\x16\x03\x01") << "the first bytes of a TLS greeting";
}

} // namespace quillon::test
