#pragma once

#include "analytics/Analytics.h"
#include "analytics/StoreEvents.h"
#include "base/Json.h"
#include "desktop/Banner.h"
#include "desktop/Hotkey.h"
#include "platform/Platform.h"
#include "platform/Sounds.h"
#include "platform/linux/files/PosixFileSystem.h"
#include "platform/linux/files/PosixFileTree.h"
#include "platform/linux/http/CurlTransport.h"
#include "state/Store.h"
#include "support/FakeClock.h"
#include "support/FakeDesktop.h"
#include "support/FakePasteboard.h"

#include <QTemporaryDir>

#include <new>

namespace quillon::test {

/// Remembers the banners it was to show.
class FakeBanner : public Banner {
public:
    std::vector<BannerMessage> shown;

    void show(BannerMessage message) override { shown.push_back(std::move(message)); }
};

/// Remembers the sounds it was to play.
class FakeSounds : public Sounds {
public:
    std::vector<Sound> played;

    void play(Sound sound) override { played.push_back(sound); }
};

/// The real files, with a count of what is replaced.
class FakeDisk : public PosixFileSystem {
public:
    mutable int writes = 0;
    /// Stands for every file that is loaded, where there is one.
    std::optional<FileLoading> loading;

    [[nodiscard]] FileLoading load(std::filesystem::path path, qint64 limit) const override {
        return loading ? *loading : PosixFileSystem::load(std::move(path), limit);
    }
    bool writeAtomically(const std::filesystem::path& path,
                         const QByteArray& bytes) const override {
        ++writes;
        return PosixFileSystem::writeAtomically(path, bytes);
    }
};

/// The real transport, which notes the time-outs of what is posted and can be cut off.
class FakeNetwork : public HttpTransport {
public:
    std::vector<std::chrono::milliseconds> timeouts;
    bool down = false;
    bool memoryIsShort = false;

    [[nodiscard]] QFuture<std::optional<HttpReply>> post(HttpRequest request) override {
        if (memoryIsShort) throw std::bad_alloc{};
        timeouts.push_back(request.inactivityTimeout);
        if (down) return QtFuture::makeReadyFuture(std::optional<HttpReply>{});
        return real_.post(std::move(request));
    }
    [[nodiscard]] QFuture<std::optional<HttpReply>> get(HttpRequest request) override {
        return real_.get(std::move(request));
    }
    [[nodiscard]] QFuture<DownloadOutcome> download(HttpDownload download) override {
        return real_.download(std::move(download));
    }
    [[nodiscard]] QFuture<HttpLook> look(std::string url,
                                         std::chrono::milliseconds limit) override {
        return real_.look(std::move(url), limit);
    }

private:
    CurlTransport real_{{.allowHttp = true}};
};

/// A computer for one store: real files in folders of its own, real HTTP, and a clock, clipboard,
/// keyring, preferences, desktop, banner and sounds that the test commands.
struct TestComputer {
    /// `botApi` is the base address of a stand-in.
    explicit TestComputer(std::string botApi = "http://127.0.0.1:9")
        : platform{.clock = clock,
                   .files = files,
                   .http = http,
                   .pasteboard = pasteboard,
                   .secrets = secrets,
                   .sounds = sounds,
                   .defaults = defaults,
                   .hotKeys = hotKeys,
                   .loginItem = loginItem,
                   .trees = trees,
                   .workspace = workspace,
                   .bundle = {.url = home() / "Downloads/Quillon.app",
                              .executable = home() / "Downloads/Quillon.app/Contents/Linux/quillon",
                              .info = {{"CFBundleIdentifier", "dev.vostrel.quillon"},
                                       {"CFBundleShortVersionString", "1.0"},
                                       {"CFBundleVersion", "1.0"}}},
                   .folders = {.home = home(),
                               .data = home() / "share",
                               .cache = home() / "cache",
                               .state = home() / "state",
                               .config = home() / "config",
                               .applications = home() / "root/Applications"},
                   .system = {.version = "6.1.0",
                              .locale = "de_AT",
                              .productName = "Desk 3 (2023)",
                              .hardwareModel = "x86_64"},
                   .dataFolder = home() / "share/Quillon",
                   .botApi = std::move(botApi),
                   .server = {}} {
        restart();
    }

    /// Ends the program and starts it again on the same data.
    void restart() {
        storeEvents.reset();
        store.reset();
        analytics = std::make_unique<Analytics>(platform);
        store = std::make_unique<Store>(platform, banner, hotkey);
        storeEvents = std::make_unique<StoreEvents>(*store, *analytics);
    }

    /// The home folder, which holds everything else.
    [[nodiscard]] std::filesystem::path home() const { return folder.path().toStdString(); }
    [[nodiscard]] std::filesystem::path path(std::string_view file) const {
        return platform.dataFolder / file;
    }
    /// The content of a data file; empty when there is none.
    [[nodiscard]] std::string content(std::string_view file) const {
        return files.read(path(file), 1'000'000'000).bytes.toStdString();
    }
    void setContent(std::string_view file, const std::string& content) const {
        files.write(path(file), QByteArray::fromStdString(content));
    }
    /// The usage events on disk, each as its name and properties.
    [[nodiscard]] std::vector<std::string> events() const {
        std::vector<std::string> events;
        const Json stored = parseJson(content("events.json")).value_or(Json::array());
        for (const Json& event : stored)
            events.push_back(event["name"].get<std::string>() + " " + event["props"].dump());
        return events;
    }

    QTemporaryDir folder;
    FakeClock clock;
    FakeDisk files;
    FakeNetwork http;
    FakePasteboard pasteboard;
    FakeSecrets secrets;
    FakeSounds sounds;
    FakeDefaults defaults;
    FakeHotKeys hotKeys;
    FakeLoginItem loginItem;
    PosixFileTree trees;
    FakeWorkspace workspace;
    FakeBanner banner;
    Platform platform;
    std::unique_ptr<Analytics> analytics;
    Hotkey hotkey{hotKeys};
    std::unique_ptr<Store> store;
    std::unique_ptr<StoreEvents> storeEvents;
};

} // namespace quillon::test
