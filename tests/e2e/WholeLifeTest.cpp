// One copy of the program from its download to its end, in a home of its own.
#include "EndToEnd.h"
#include "support/RawServer.h"

#include <algorithm>

namespace quillon::test {

namespace {

using std::filesystem::path;

/// Runs to the end and gives standard output, without the last line break.
std::string output(const std::string& tool, const std::vector<std::string>& arguments) {
    QProcess process;
    process.start(QString::fromStdString(tool), toList(arguments));
    EXPECT_TRUE(process.waitForFinished(60'000));
    EXPECT_EQ(process.exitCode(), 0) << tool << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput().trimmed().toStdString();
}

/// The processes that run this executable.
std::vector<int> running(const path& executable) {
    std::vector<int> found;
    for (const auto& entry : std::filesystem::directory_iterator{"/proc"}) {
        std::error_code error;
        if (std::filesystem::read_symlink(entry.path() / "exe", error) == executable)
            found.push_back(std::stoi(entry.path().filename()));
    }
    return found;
}

/// Whether such a window is there; if so, gives it the focus and presses the keys.
bool answer(const std::string& title, const QStringList& keys = words("key Return")) {
    const QString tool = QStringLiteral("xdotool");
    const QStringList focus =
        toList({"search", "--onlyvisible", "--name", "^" + title + "$", "windowfocus", "--sync"});
    // Two runs, for a key that is pressed in the first would be sent to the window itself.
    return QProcess::execute(tool, focus) == 0 && QProcess::execute(tool, keys) == 0;
}

/// The makers' web server, with a feed that announces one archive.
class Feed {
public:
    explicit Feed(path folder) : folder_{std::move(folder)} {}

    [[nodiscard]] std::string url() const { return server_.url("/feed.xml"); }
    [[nodiscard]] bool asked() const { return server_.connections() > 0; }

    void announce(const std::string& version, const std::string& archive,
                  const std::string& signature, std::size_t length) const {
        write(folder_ / "feed.xml",
              R"(<rss version="2.0" xmlns:quillon="urn:dev.vostrel.quillon:update"><channel><item>)"
              "<quillon:version>" +
                  version + "</quillon:version><description>Sends even faster.</description>" +
                  R"(<enclosure type="application/x-xz" url=")" + server_.url("/" + archive) +
                  R"(" length=")" + std::to_string(length) + R"(" quillon:edSignature=")" +
                  signature + R"("/></item></channel></rss>)");
    }

private:
    void serve(RawServer::Connection& connection) const {
        const std::string request = connection.request();
        const auto begin = request.find('/') + 1;
        connection.reply(
            200, content(folder_ / request.substr(begin, request.find(' ', begin) - begin)));
    }

    path folder_;
    RawServer server_{[this](RawServer::Connection& connection) { serve(connection); }};
};

struct WholeLife : EndToEnd {
    WholeLife() {
        for (const char* variable :
             {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"})
            quillon.environment.remove(QString::fromLatin1(variable));
        quillon.environment.insert(QStringLiteral("HOME"), QString::fromStdString(home.native()));
        quillon.environment.insert(QStringLiteral("QUILLON_SERVER"),
                                   QString::fromStdString(phone.baseUrl()));
        std::filesystem::create_directories(shop);
        std::filesystem::create_directories(home / "Downloads");
    }

    void TearDown() override {
        for (const path& program : {downloaded / inside, installed / inside}) {
            for (const int process : running(program))
                ::kill(process, SIGKILL);
        }
        EndToEnd::TearDown();
    }

    /// Makes the makers' key, and leaves version 1.0 unpacked as it comes from the web.
    void download() {
        // What is quickly packed is larger, and no other archive.
        qputenv("XZ_OPT", "-0");
        output("openssl", {"genpkey", "-algorithm", "ed25519", "-out", pem});
        key = output(QUILLON_SOURCE "/packaging/sign", {"--public-key", pem});
        output("tar", {"-xf", shop / makeBundle("1.0"), "-C", home / "Downloads"});
        quillon.executable = downloaded / inside;
    }

    /// Makes the archive of a version, and gives its name.
    [[nodiscard]] std::string makeBundle(const std::string& version) const {
        const std::string made = output(QUILLON_SOURCE "/packaging/bundle",
                                        {"--program", QUILLON, "--version", version, "--feed",
                                         feed.url(), "--key", key, "--output", shop.native()});
        return path{made.substr(made.rfind('\n') + 1)}.filename();
    }

    /// The processes of the installed copy that stay.
    [[nodiscard]] std::vector<int> residents() const { return running(installed / inside); }

    void endResident() {
        for (const int process : residents())
            ::kill(process, SIGTERM);
        EXPECT_TRUE(waitUntil([&] { return residents().empty(); }));
    }

    void startInstalled() { resident = startProgram(); }

    /// How often the makers have been told of such an event.
    [[nodiscard]] std::ptrdiff_t told(const std::string& event) const {
        std::ptrdiff_t count = 0;
        for (const sandbox::EventsRecord& delivery : phone.events()) {
            const Json body = Json::parse(delivery.body);
            count += std::ranges::count_if(body["events"],
                                           [&](const Json& each) { return each["name"] == event; });
        }
        return count;
    }

    path home = data.path().toStdString() + "/person";
    path shop = data.path().toStdString() + "/shop";
    std::string pem = shop / "key.pem";
    std::string key; ///< its public half
    path inside = "Contents/Linux/quillon";
    path downloaded = home / "Downloads/Quillon.app";
    path installed = home / "Applications/Quillon.app";
    Feed feed{shop};
    std::unique_ptr<QProcess> resident;
};

} // namespace

TEST_F(WholeLife, FromTheDownloadToTheTrash) {
    download();

    // It offers to move, and moves.
    EXPECT_EQ(quillon.run({"--version"}).out, "quillon 1.0\n");
    resident = quillon.start({});
    ASSERT_TRUE(waitUntil([] { return answer("Quillon"); }));
    ASSERT_EQ(Program::finish(*resident).code, 0);
    quillon.executable = installed / inside;
    ASSERT_TRUE(waitUntil([&] { return residents().size() == 1 && Program::hasName(); }));
    EXPECT_FALSE(std::filesystem::exists(downloaded));
    EXPECT_THAT(content(home / ".local/share/applications/dev.vostrel.quillon.desktop"),
                HasSubstr("\nExec=" + (installed / inside).native() + " %F\n"));

    // It is set up, and sends.
    setUp();
    EXPECT_EQ(quillon.run({"launch-at-login", "on"}).code, 0);
    clipboard.copyText("hello");
    output("xdotool", {"key", "ctrl+alt+v"});
    EXPECT_TRUE(waitUntil([&] { return messages("📝 Notes & text").size() == 2; }));
    endResident();
    EXPECT_EQ(told("app_opened"), 1);
    EXPECT_EQ(told("sent"), 1);

    // On its second start it asks whether to look for updates, finds one, and installs it.
    const std::string second = makeBundle("1.1");
    const std::string signature = output(QUILLON_SOURCE "/packaging/sign", {pem, shop / second});
    feed.announce("1.1", second, signature.substr(0, signature.find(' ')),
                  std::filesystem::file_size(shop / second));
    startInstalled();
    const std::vector<int> old = residents();
    // Neither window takes a Return that may have been meant for another program.
    const QStringList tabAndReturn = words("key Tab Return");
    ASSERT_TRUE(waitUntil(
        [&] {
            return answer("Software Update", tabAndReturn) &&
                   waitUntil([&] { return feed.asked(); }, 2s);
        },
        30s));
    ASSERT_TRUE(waitUntil([&] { return answer("Software Update", tabAndReturn); }));
    ASSERT_TRUE(waitUntil(
        [&] {
            answer("Software Update");
            return quillon.run({"--version"}).out == "quillon 1.1\n";
        },
        30s));
    ASSERT_EQ(Program::finish(*resident).code, 0);
    ASSERT_TRUE(waitUntil([&] { return residents().size() == 1 && Program::hasName(); }));
    EXPECT_NE(residents(), old);
    EXPECT_TRUE(waitUntil([&] {
        const std::filesystem::directory_iterator left{home / "Applications"};
        return std::ranges::distance(begin(left), end(left)) == 1;
    })) << "the old version is still there";
    EXPECT_EQ(quillon.run({"check-for-updates"}).out, "Quillon 1.1 is up to date.\n");
    endResident();
    startInstalled();
    EXPECT_EQ(told("updated"), 1);
    EXPECT_THAT(phone.events().back().body, HasSubstr(R"({"from_version":"1.0"})"));

    // It removes itself, with all it has stored and what an update that was killed has left.
    std::filesystem::create_directory(home / "Applications/.Quillon-update-abcdef");
    write(home / "Applications/.Quillon-update-abcdef/half");
    EXPECT_EQ(quillon.run({"uninstall", "--yes"}).code, 0);
    EXPECT_EQ(Program::finish(*resident).code, 0);
    EXPECT_THAT(residents(), IsEmpty());
    std::vector<std::string> left;
    for (const auto& entry : std::filesystem::recursive_directory_iterator{home}) {
        const std::string name = entry.path().lexically_relative(home);
        // All programs share the sound library's cache.
        const bool others =
            name.starts_with(".local/share/Trash/") || name.starts_with(".cache/event-sound-cache");
        if (!entry.is_directory() && !others) left.push_back(name);
    }
    EXPECT_THAT(left, IsEmpty());
    EXPECT_TRUE(std::filesystem::exists(home / ".local/share/Trash/files/Quillon.app" / inside));
    EXPECT_NE(QProcess::execute(QStringLiteral("secret-tool"),
                                words("lookup service quillon-telegram-token")),
              0);
}

} // namespace quillon::test
