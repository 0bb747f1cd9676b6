// The program on a Wayland desktop that has no X server.
#include "EndToEnd.h"
#include "ScreenReader.h"
#include "support/FakeHost.h"
#include "support/Sway.h"

namespace quillon::test {

namespace {

/// Whether it is the colour of a banner's warning symbol, or nearly so at its edges.
bool isWarning(QRgb pixel) {
    return qRed(pixel) > 200 && qGreen(pixel) > 140 && qGreen(pixel) < 210 && qBlue(pixel) < 110;
}

/// The middle of a banner's warning symbol; none where there is no such symbol.
std::optional<QPoint> warningIn(const QImage& picture) {
    QRect found;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            if (isWarning(picture.pixel(x, y))) found |= QRect{x, y, 1, 1};
    }
    return found.isNull() ? std::nullopt : std::optional{found.center()};
}

} // namespace

struct WaylandDesktop : EndToEnd {
    void SetUp() override {
        EndToEnd::SetUp();
        quillon.environment.remove(QStringLiteral("DISPLAY"));
        quillon.environment.insert(QStringLiteral("WAYLAND_DISPLAY"), sway.socket());
        terminal.setProcessEnvironment(quillon.environment);
        terminal.setStandardErrorFile(QProcess::nullDevice());
        terminal.start(QStringLiteral("foot"), {QStringLiteral("cat")});
        ASSERT_TRUE(waitUntil([this] { return focused() == "foot"; }));
    }

    void TearDown() override {
        terminal.terminate();
        terminal.waitForFinished();
        EndToEnd::TearDown();
    }

    /// Calls `take` for each window, from back to front.
    void forWindows(const Json& container, const std::function<void(const Json&)>& take) const {
        for (const char* list : {"nodes", "floating_nodes"}) {
            for (const Json& each : container.value(list, Json::array()))
                forWindows(each, take);
        }
        if (container.contains("pid")) take(container);
    }
    [[nodiscard]] std::vector<Json> windows() const {
        std::vector<Json> all;
        forWindows(Json::parse(sway.ask("-t get_tree")),
                   [&](const Json& window) { all.push_back(window); });
        return all;
    }
    /// The program whose window has the keyboard.
    [[nodiscard]] std::string focused() const {
        for (const Json& window : windows())
            if (window["focused"] == true) return window["app_id"];
        return {};
    }

    Sway sway;
    QProcess terminal;
};

TEST_F(WaylandDesktop, ABannerLiesOverAFullScreenWindowAndTakesNothing) {
    sway.ask("fullscreen enable");
    for (const double scale : {1.0, 1.5, 2.0}) {
        SCOPED_TRACE(scale);
        sway.ask("output * scale " + std::to_string(scale));
        const Finished run = quillon.run({"send"});
        EXPECT_EQ(run.err, "Finish setting up Quillon first\n");
        std::optional<QPoint> warning;
        EXPECT_TRUE(waitUntil([&] { return (warning = warningIn(sway.picture())).has_value(); }));
        if (!warning) continue;
        EXPECT_NEAR((warning->x() - 640) / scale, 120, 10) << "the banner is not in the middle";
        // Below the bar, its own distance, the room for its shadow and half a line.
        EXPECT_NEAR(warning->y() / scale, 23 + 12 + 16 + 21, 2);
        EXPECT_EQ(focused(), "foot");
        for (const int banner : quillon.processes())
            ::kill(banner, SIGTERM);
        EXPECT_TRUE(waitUntil([&] { return !warningIn(sway.picture()); }));
    }
}

TEST_F(WaylandDesktop, TheProgramWorksWithoutAnXServer) {
    const FakeHost panel{true};
    const ScreenReader reader;
    const auto program = startProgram();
    reader.wait("password text", "Bot token");
    EXPECT_TRUE(waitUntil([this] { return focused() == "dev.vostrel.quillon"; }));
    setUp();
    reader.wait("notification", "You're all set.");
    ASSERT_TRUE(waitUntil([&] { return panel.items() == 1; })) << "there is no icon";
    panel.click();
    reader.waitForFocus("Send clipboard to phone");
    ASSERT_EQ(windows().size(), 3U);
    EXPECT_EQ(windows().back()["type"], "floating_con") << "the desktop has tiled the panel";
    EXPECT_EQ(quillon.run({"send"}).code, 1);
    EXPECT_TRUE(reader.hears("The clipboard is empty"));
    endProgram(*program);
}

} // namespace quillon::test
