#include "platform/linux/wayland/LayerOverlay.h"
#include "support/Sway.h"

#include <QElapsedTimer>

#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>

namespace quillon::test {
namespace {

using namespace std::chrono_literals;

/// What the compositor at this socket offers; null when nobody is there.
std::unique_ptr<LayerOverlay> overlayAt(const QString& socket) {
    qputenv("WAYLAND_DISPLAY", socket.toUtf8());
    auto shell = LayerShell::open();
    qunsetenv("WAYLAND_DISPLAY");
    if (!shell) return nullptr;
    shell->followEvents();
    return std::make_unique<LayerOverlay>(std::move(shell));
}

/// A socket at which nobody accepts who connects.
int listenAt(const QByteArray& path) {
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    const int listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    EXPECT_EQ(::bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(::listen(listener, 1), 0);
    return listener;
}

Overlay::Picture picture(QColor colour, std::vector<double>* scales = nullptr) {
    return {
        .size = {301, 51}, .edge = Overlay::Edge::top, .distance = 12, .paint = [=](double scale) {
            if (scales) scales->push_back(scale);
            QImage image{(QSizeF{301, 51} * scale).toSize(), QImage::Format_ARGB32};
            image.fill(colour);
            return image;
        }};
}

} // namespace

TEST(LayerOverlayTest, WaitsForNoCompositorThatIsAwayOrHangsOrGoes) {
    EXPECT_EQ(overlayAt({}), nullptr);
    EXPECT_EQ(overlayAt(QStringLiteral("/nowhere/wayland-0")), nullptr);
    const QTemporaryDir folder;
    const QString socket = folder.filePath(QStringLiteral("wayland"));
    const int listener = listenAt(socket.toUtf8());
    const auto overlay = overlayAt(socket);
    ASSERT_NE(overlay, nullptr);
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(overlay->usable(50ms));
    EXPECT_LT(timer.elapsed(), 1000);
    ::close(listener);
    EXPECT_FALSE(overlay->usable(10s));
    EXPECT_LT(timer.elapsed(), 5000) << "it waits for one that is gone";
}

TEST(LayerOverlayTest, FadesAPictureAtTheScreensScaleUntilTheCompositorFails) {
    Sway sway;
    const auto overlay = overlayAt(sway.socket());
    ASSERT_NE(overlay, nullptr);
    ASSERT_TRUE(overlay->usable(5s));
    const auto middle = [&] { return sway.picture().pixelColor(640, 23 + 12 + 25); };
    const QColor ground = middle();
    overlay->show(picture(Qt::white));
    overlay->setOpacity(0.5);
    EXPECT_TRUE(waitUntil([&] { return std::abs(2 * middle().red() - ground.red() - 255) < 5; }));
    overlay->setOpacity(1);
    EXPECT_TRUE(waitUntil([&] { return middle() == Qt::white; }));
    overlay->show(picture(Qt::red));
    EXPECT_TRUE(waitUntil([&] { return middle() == Qt::red; })) << "it takes the opacity over";
    overlay->hide();
    EXPECT_TRUE(waitUntil([&] { return middle() == ground; }));

    std::vector<double> scales;
    sway.ask("output * scale 2");
    overlay->show(picture(Qt::white, &scales));
    EXPECT_TRUE(waitUntil([&] { return !scales.empty() && scales.back() == 2; }));

    sway.hang();
    QElapsedTimer timer;
    timer.start();
    // Until the socket is full, and beyond.
    for (int i = 0; i < 10'000; ++i) {
        overlay->show(picture(Qt::red));
        overlay->setOpacity(i % 2);
    }
    EXPECT_FALSE(overlay->usable(0s)) << "it would be sent more and more";
    EXPECT_LT(timer.elapsed(), 2000);
    sway.stop();
    overlay->show(picture(Qt::red));
    overlay->hide();
}

} // namespace quillon::test
