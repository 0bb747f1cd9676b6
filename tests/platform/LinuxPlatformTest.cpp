#include "platform/linux/LinuxPlatform.h"

#include "support/Await.h"
#include "support/RawServer.h"

#include <QTemporaryDir>

#include <sys/stat.h>

namespace quillon::test {
namespace {

void setEnvironment(const char* name, const char* value) {
    value ? qputenv(name, value) : qunsetenv(name);
}

TEST(LinuxPlatformTest, TakesItsPlacesFromTheEnvironment) {
    struct Case {
        const char* data;
        const char* home;
        const char* api;
        const char* dataFolder;
        const char* botApi;
    };
    constexpr Case cases[]{
        {nullptr, "/home/m\xc3\xa9", nullptr, "/home/m\xc3\xa9/.local/share/Quillon",
         "https://api.telegram.org"},
        {"relative", "/home/me", "", "/home/me/.local/share/Quillon", "https://api.telegram.org"},
        {"/data", "/home/me", "http://127.0.0.1:81//", "/data/Quillon", "http://127.0.0.1:81"},
    };
    const auto home = qgetenv("HOME");
    for (const Case& each : cases) {
        setEnvironment("XDG_DATA_HOME", each.data);
        setEnvironment("HOME", each.home);
        setEnvironment("QUILLON_BOT_API", each.api);
        LinuxPlatform platform{std::make_unique<EmptyPasteboard>()};
        EXPECT_EQ(platform.platform().dataFolder, each.dataFolder);
        EXPECT_EQ(platform.platform().botApi, each.botApi);
    }
    qputenv("HOME", home);
    qunsetenv("XDG_DATA_HOME");
    qunsetenv("QUILLON_BOT_API");
}

TEST(LinuxPlatformTest, SpeaksPlainHttpOnlyToAServerOfTheUsersChoice) {
    RawServer server{[](RawServer::Connection& connection) {
        connection.request();
        connection.reply(200, "");
    }};
    for (const bool chosen : {false, true}) {
        setEnvironment("QUILLON_BOT_API", chosen ? server.url().c_str() : nullptr);
        LinuxPlatform platform{std::make_unique<EmptyPasteboard>()};
        HttpRequest request;
        request.url = server.url();
        EXPECT_EQ(await(platform.platform().http.post(std::move(request))).has_value(), chosen);
    }
    qunsetenv("QUILLON_BOT_API");
}

TEST(QtUserDefaultsTest, KeepsToItselfAndDoesNotWaitForAPipe) {
    const QTemporaryDir folder;
    const std::filesystem::path file = folder.path().toStdString() + "/new/prefs.ini";
    const auto mode = [&] { return std::filesystem::status(file).permissions(); };
    constexpr auto own = std::filesystem::perms{0600};
    QtUserDefaults{file}.setText("a", "1");
    EXPECT_EQ(mode(), own);
    std::filesystem::permissions(file, std::filesystem::perms{0644});
    QtUserDefaults again{file};
    EXPECT_EQ(mode(), own) << "one of a version before";
    again.setFlag("b", true);
    EXPECT_EQ(mode(), own);
    EXPECT_EQ(QtUserDefaults{file}.text("a"), "1");
    again.removeAll();
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    QtUserDefaults piped{file};
    piped.setText("a", "2");
    EXPECT_EQ(piped.text("a"), "2");
    piped.removeAll();
    EXPECT_TRUE(std::filesystem::is_fifo(file));
}

} // namespace
} // namespace quillon::test
