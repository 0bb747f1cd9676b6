#include "platform/linux/http/CurlTransport.h"
#include "support/Await.h"
#include "support/RawServer.h"

#include <gmock/gmock.h>

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <future>

namespace quillon::test {
namespace {

using namespace std::chrono_literals;
using Connection = RawServer::Connection;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

HttpRequest requestTo(std::string url, std::vector<QByteArray> body = {"{}"}) {
    HttpRequest request;
    request.url = std::move(url);
    request.headers = {{"Content-Type", "application/json"}};
    request.body = std::move(body);
    return request;
}

class CurlTransportTest : public testing::Test {
protected:
    std::optional<HttpReply> post(const std::string& url) {
        return await(transport->post(requestTo(url)));
    }

    std::unique_ptr<CurlTransport> transport =
        std::make_unique<CurlTransport>(CurlTransportOptions{.allowHttp = true});
};

TEST_F(CurlTransportTest, SendsPiecesAsOneBodyAndKeepsTheConnection) {
    std::promise<std::string> first;
    RawServer server{[&](Connection& connection) {
        first.set_value(connection.request());
        connection.reply(200, std::string_view{"a\0b", 3});
        connection.request();
        connection.reply(404, "");
        connection.awaitEnd();
    }};
    const std::string zeros(3'000'000, '\0');
    auto request = requestTo(server.url("/bot1:a/../x%20y"),
                             {"head\0er", {}, QByteArray::fromStdString(zeros), "tail"});
    request.body[0] = QByteArray{"head\0er", 7};
    const auto reply = await(transport->post(std::move(request)));

    ASSERT_TRUE(reply);
    EXPECT_EQ(reply->status, 200);
    EXPECT_EQ(reply->body, QByteArray("a\0b", 3));
    const std::string sent = first.get_future().get();
    const auto head = sent.substr(0, sent.find("\r\n\r\n"));
    EXPECT_THAT(head, StartsWith("POST /bot1:a/../x%20y HTTP/1.1\r\n"));
    EXPECT_THAT(head, HasSubstr("Content-Type: application/json"));
    EXPECT_THAT(head, Not(HasSubstr("Expect")));
    EXPECT_TRUE(sent.substr(head.size() + 4) == std::string("head\0er", 7) + zeros + "tail");

    EXPECT_EQ(post(server.url()).value().status, 404);
    EXPECT_EQ(server.connections(), 1);
}

TEST_F(CurlTransportTest, SendsNothingTwiceThatMayHaveArrived) {
    std::atomic<int> arrived = 0;
    RawServer server{[&](Connection& connection) {
        if (connection.request().ends_with("a message")) ++arrived;
        connection.reply(200, "reply");
        // The next request on this connection is taken, and perhaps carried out, but not answered.
        if (connection.request().ends_with("a message")) ++arrived;
    }};
    ASSERT_TRUE(post(server.url()));
    EXPECT_EQ(await(transport->post(requestTo(server.url(), {"a message"}))), std::nullopt);
    EXPECT_EQ(arrived, 1);
    EXPECT_TRUE(post(server.url())) << "the next one has a connection of its own";
}

TEST_F(CurlTransportTest, TakesARedirectAsTheReply) {
    RawServer other{[](Connection& connection) { connection.request(); }};
    RawServer server{[&](Connection& connection) {
        connection.request();
        connection.reply(302, "elsewhere", "Location: " + other.url() + "\r\n");
    }};
    const auto reply = post(server.url());
    ASSERT_TRUE(reply);
    EXPECT_EQ(reply->status, 302);
    EXPECT_EQ(reply->body, "elsewhere");
    EXPECT_EQ(other.connections(), 0);
}

TEST_F(CurlTransportTest, TakesAReplyThatComesBeforeTheBodyHasGone) {
    RawServer server{[](Connection& connection) {
        connection.receive(1000);
        connection.reply(413, "{\"ok\":false}", "Connection: close\r\n");
        connection.awaitEnd();
    }};
    const auto reply =
        await(transport->post(requestTo(server.url(), {QByteArray(60'000'000, 'x')})));
    ASSERT_TRUE(reply);
    EXPECT_EQ(reply->status, 413);
    EXPECT_EQ(reply->body, "{\"ok\":false}");
}

TEST_F(CurlTransportTest, FailsWithoutAWholeReply) {
    struct Case {
        const char* what;
        std::function<void(Connection&)> serve;
    };
    const std::string oversized(HttpTransport::maximumReplySize + 1, 'x');
    const Case cases[]{
        {"closed without a word", [](Connection& connection) { connection.request(); }},
        {"reply shorter than announced",
         [](Connection& connection) {
             connection.request();
             connection.send("HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\n{\"ok\":");
         }},
        {"not HTTP",
         [](Connection& connection) {
             connection.request();
             connection.send("SSH-2.0-Server\r\n");
         }},
        {"reply too large",
         [&](Connection& connection) {
             connection.request();
             connection.reply(200, oversized);
         }},
        {"endless reply without a length",
         [](Connection& connection) {
             connection.request();
             connection.send("HTTP/1.1 200 OK\r\n\r\n");
             while (connection.send(std::string(1 << 16, 'x')))
                 continue;
         }},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        RawServer server{each.serve};
        EXPECT_FALSE(post(server.url()));
    }
}

TEST_F(CurlTransportTest, TakesAReplyOfTheLargestSize) {
    const std::string largest(HttpTransport::maximumReplySize, 'x');
    RawServer server{[&](Connection& connection) {
        connection.request();
        connection.reply(200, largest);
    }};
    const auto reply = post(server.url());
    ASSERT_TRUE(reply);
    EXPECT_EQ(reply->body.size(), HttpTransport::maximumReplySize);
}

TEST_F(CurlTransportTest, FailsWhereNobodyListens) {
    std::string url;
    {
        RawServer server{[](Connection&) {}};
        url = server.url();
    }
    EXPECT_FALSE(post(url));
    EXPECT_FALSE(post("http://[::1"));
    EXPECT_FALSE(post("ftp://127.0.0.1/"));
}

TEST_F(CurlTransportTest, RefusesHttpUnlessAllowed) {
    RawServer server{[](Connection& connection) {
        connection.request();
        connection.reply(200, "");
    }};
    CurlTransport strict;
    EXPECT_FALSE(await(strict.post(requestTo(server.url()))));
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(CurlTransportTest, CutsWhatStallsButNotWhatTrickles) {
    constexpr auto timeout = 600ms;
    std::promise<void> over;
    const auto end = over.get_future().share();
    RawServer trickling{[&](Connection& connection) {
        connection.request();
        connection.send("HTTP/1.1 200 OK\r\nContent-Length: 8\r\n\r\n");
        for (int count = 0; count < 8; ++count) {
            end.wait_for(timeout / 4);
            connection.send("x");
        }
    }};
    RawServer stalling{[&](Connection& connection) {
        connection.request();
        connection.send("HTTP/1.1 200 OK\r\nContent-Length: 8\r\n\r\nxx");
        end.wait_for(10s);
    }};
    // Takes a part of the body and then no more.
    RawServer clogging{[&](Connection&) { end.wait_for(10s); }};

    const auto start = [&](const RawServer& server, qsizetype size) {
        auto request = requestTo(server.url(), {QByteArray(size, 'x')});
        request.inactivityTimeout = timeout;
        return transport->post(std::move(request));
    };
    const auto begin = std::chrono::steady_clock::now();
    const auto elapsed = [&] { return std::chrono::steady_clock::now() - begin; };
    const auto trickled = start(trickling, 1);
    auto brief = requestTo(trickling.url(), {});
    brief.totalTimeout = timeout;
    const auto limited = transport->post(std::move(brief));
    auto unwanted = requestTo(stalling.url(), {});
    std::stop_source stop;
    unwanted.stop = stop.get_token();
    const auto stopped = transport->get(std::move(unwanted));
    stop.request_stop();
    EXPECT_FALSE(await(stopped));
    EXPECT_LT(elapsed(), timeout);
    EXPECT_FALSE(await(limited));
    const auto stalled = start(stalling, 1);
    const auto clogged = start(clogging, 20'000'000);
    EXPECT_FALSE(await(stalled));
    EXPECT_FALSE(await(clogged));
    EXPECT_GE(elapsed(), timeout);
    EXPECT_LT(elapsed(), 5s);
    const auto reply = await(trickled);
    ASSERT_TRUE(reply);
    EXPECT_EQ(reply->body, "xxxxxxxx");
    EXPECT_GE(elapsed(), 2 * timeout);
    over.set_value();
}

TEST_F(CurlTransportTest, TellsProgressOnItsThreadUpToTheEnd) {
    RawServer server{[](Connection& connection) {
        connection.request();
        connection.reply(200, "");
    }};
    auto request = requestTo(server.url(), {QByteArray(30'000'000, 'x'), QByteArray(1, 'y')});
    std::vector<qint64> told;
    QElapsedTimer elapsed;
    elapsed.start();
    request.progress = [&](qint64 sent, qint64 total) {
        EXPECT_EQ(QThread::currentThread(), qApp->thread());
        EXPECT_EQ(total, 30'000'001);
        told.push_back(sent);
    };
    ASSERT_TRUE(await(transport->post(std::move(request))));
    ASSERT_TRUE(waitUntil([&] { return !told.empty() && told.back() == 30'000'001; }));
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    EXPECT_LE(static_cast<qint64>(told.size()), 3 + elapsed.elapsed() / 100);
}

TEST_F(CurlTransportTest, EndsTransfersWhenDestroyed) {
    RawServer server{[](Connection& connection) { connection.awaitEnd(); }};
    bool told = false;
    auto request = requestTo(server.url(), {QByteArray(20'000'000, 'x')});
    request.progress = [&](qint64, qint64) {
        told = true;
        transport.reset();
    };
    const auto running = transport->post(std::move(request));
    const auto second = transport->post(requestTo(server.url()));
    ASSERT_TRUE(waitUntil([&] { return told; }));
    EXPECT_TRUE(running.isFinished());
    EXPECT_EQ(running.result(), std::nullopt);
    EXPECT_EQ(second.result(), std::nullopt);
}

/// A server for https on localhost whose certificate nobody has signed.
class TlsServer {
public:
    TlsServer() {
        QProcess maker;
        maker.start(QStringLiteral("openssl"),
                    QStringLiteral("req -x509 -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 "
                                   "-nodes -days 2 -subj /CN=localhost "
                                   "-addext subjectAltName=DNS:localhost -keyout %1 -out %2")
                        .arg(key_, certificate())
                        .split(u' '));
        EXPECT_TRUE(maker.waitForFinished());
        server_.start(QStringLiteral("openssl"),
                      QStringLiteral("s_server -accept 127.0.0.1:0 -key %1 -cert %2")
                          .arg(key_, certificate())
                          .split(u' '));
        EXPECT_TRUE(
            waitUntil([&] { return hasPrinted("ACCEPT 127.0.0.1:") && output_.endsWith('\n'); }));
        port_ = output_.mid(output_.lastIndexOf(':') + 1).trimmed().toStdString();
    }
    TlsServer(const TlsServer&) = delete;
    TlsServer& operator=(const TlsServer&) = delete;
    ~TlsServer() {
        server_.kill();
        server_.waitForFinished();
    }

    [[nodiscard]] QString certificate() const { return folder_.filePath(QStringLiteral("cert")); }
    [[nodiscard]] std::string url(const std::string& host) const {
        return "https://" + host + ':' + port_ + '/';
    }
    /// Answers the next request once it has come through.
    void reply() {
        EXPECT_TRUE(waitUntil([&] { return hasPrinted("POST / HTTP/"); }));
        server_.write("HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\nhi");
    }

private:
    bool hasPrinted(const char* text) {
        server_.waitForReadyRead(50);
        output_ += server_.readAllStandardOutput();
        return output_.contains(text);
    }

    QTemporaryDir folder_;
    QString key_ = folder_.filePath(QStringLiteral("key"));
    QProcess server_;
    QByteArray output_;
    std::string port_;
};

TEST_F(CurlTransportTest, TrustsOnlyCertificatesItKnowsForTheHost) {
    TlsServer server;
    EXPECT_FALSE(post(server.url("localhost")));

    CurlTransport trusting{{.trustedCertificates = server.certificate().toStdString()}};
    EXPECT_FALSE(await(trusting.post(requestTo(server.url("127.0.0.1")))));
    const auto trusted = trusting.post(requestTo(server.url("localhost")));
    server.reply();
    EXPECT_EQ(await(trusted).value_or(HttpReply{}).body, "hi");

    qputenv("SSL_CERT_FILE", server.certificate().toUtf8());
    TlsServer another;
    EXPECT_FALSE(post(another.url("localhost")));
    qputenv("SSL_CERT_FILE", another.certificate().toUtf8());
    const auto named = transport->post(requestTo(another.url("localhost")));
    another.reply();
    EXPECT_EQ(await(named).value_or(HttpReply{}).body, "hi");
    qunsetenv("SSL_CERT_FILE");
}

} // namespace
} // namespace quillon::test
