#include "platform/linux/http/CurlTransport.h"

#include "platform/linux/http/Certificates.h"
#include "sandbox/Sandbox.h"
#include "support/Await.h"
#include "support/Files.h"
#include "support/RawServer.h"

#include <QTemporaryDir>

namespace quillon::test {
namespace {

using Connection = RawServer::Connection;

HttpRequest requestTo(std::string url, std::vector<QByteArray> body = {"{}"}) {
    HttpRequest request;
    request.url = std::move(url);
    request.headers = {{"Content-Type", "application/json"}};
    request.body = std::move(body);
    return request;
}

struct CurlTransportTest : testing::Test {
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

TEST_F(CurlTransportTest, SendsNothingTwiceThatMayHaveArrivedUnlessItOnlyReads) {
    for (const bool onlyReads : {false, true}) {
        std::atomic<int> arrived = 0;
        RawServer server{[&](Connection& connection) {
            if (connection.request().ends_with("a message")) ++arrived;
            connection.reply(200, "reply");
            // The next request on this connection is taken, and perhaps carried out, but not
            // answered.
            if (connection.request().ends_with("a message")) ++arrived;
        }};
        ASSERT_TRUE(post(server.url()));
        HttpRequest request = requestTo(server.url(), {"a message"});
        request.onlyReads = onlyReads;
        const auto reply = await(transport->post(std::move(request)));
        EXPECT_EQ(reply ? reply->body : "", onlyReads ? "reply" : "");
        EXPECT_EQ(arrived, onlyReads ? 2 : 1);
        // The repeat's connection is kept, and breaks in its turn.
        EXPECT_EQ(post(server.url()).has_value(), !onlyReads);
    }
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

TEST_F(CurlTransportTest, TakesRepliesUpToTheLargestSize) {
    constexpr std::size_t largest{HttpTransport::maximumReplySize};
    for (const std::size_t size : {largest, largest + 1}) {
        RawServer server{[&](Connection& connection) {
            connection.request();
            connection.reply(200, std::string(size, 'x'));
        }};
        const auto reply = post(server.url());
        EXPECT_EQ(reply ? static_cast<std::size_t>(reply->body.size()) : 0,
                  size == largest ? size : 0);
    }
    RawServer endless{[](Connection& connection) {
        connection.request();
        connection.send("HTTP/1.1 200 OK\r\n\r\n");
        while (connection.send(std::string(1 << 16, 'x')))
            continue;
    }};
    EXPECT_FALSE(post(endless.url())) << "without a length";
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

TEST_F(CurlTransportTest, TrustsOnlyCertificatesItKnowsForTheHost) {
    const sandbox::Sandbox server{{.tls = true}};
    const std::string address = server.baseUrl();
    const std::string port = address.substr(address.rfind(':')) + "/";
    const auto answered = [&](HttpTransport& http, const std::string& host) {
        return await(http.post(requestTo("https://" + host + port))).has_value();
    };
    EXPECT_FALSE(answered(*transport, "localhost"));
    CurlTransport trusting{{.trustedCertificates = server.caFile()}};
    EXPECT_TRUE(answered(trusting, "localhost"));
    EXPECT_FALSE(answered(trusting, "other.localhost")) << "this machine by a name of its own";

    qputenv("SSL_CERT_FILE", QByteArray::fromStdString(server.caFile()));
    EXPECT_TRUE(answered(*transport, "localhost"));
    qunsetenv("SSL_CERT_FILE");
}

TEST(Certificates, AreReadFromAFolderAloneWhereItHasAllOfThem) {
    const QTemporaryDir temporary;
    const std::filesystem::path root = temporary.path().toStdString();
    const CertificatePlaces system{.bundle = root / "bundle", .folder = root / "system"};
    const auto add = [&](const char* folder, const std::vector<std::string>& names) {
        std::filesystem::create_directory(root / folder);
        for (const std::string& name : names)
            write(root / folder / name);
        return replacesBundle(root / folder, system);
    };
    const std::string certificate =
        "-----BEGIN CERTIFICATE-----\nMII=\n-----END CERTIFICATE-----\n";
    write(system.bundle, certificate + "# another\n" + certificate);
    EXPECT_FALSE(add("system", {"0123abcd.0", "a.pem", "0123abcg.0", "01234567.x", "012345678"}));
    EXPECT_TRUE(add("system", {"0123abcd.1"}));
    EXPECT_FALSE(add("own", {"0123abcd.0", "ffffffff.0"}));
    EXPECT_TRUE(add("own", {"0123abcd.1"}));
    EXPECT_FALSE(replacesBundle(root / "own", {.bundle = system.bundle, .folder = root / "none"}));

    // On another distribution, the bundle has another name.
    EXPECT_EQ(systemBundle(root / "none", root), root / "none");
    std::filesystem::create_directories(root / "etc/ssl");
    write(root / "etc/ssl/ca-bundle.pem");
    EXPECT_EQ(systemBundle(root / "none", root), root / "etc/ssl/ca-bundle.pem");
    EXPECT_EQ(systemBundle(system.bundle, root), system.bundle);
}

} // namespace
} // namespace quillon::test
