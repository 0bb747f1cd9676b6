#include "platform/linux/LinuxSurroundings.h"

#include "base/Environment.h"
#include "platform/linux/OpenPasteboard.h"
#include "platform/linux/files/Descriptor.h"
#include "platform/linux/http/LibCurl.h"
#include "platform/linux/shortcut/FoundSession.h"
#include "platform/linux/wayland/LayerShell.h"
#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/X11HotKeys.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>
#include <QPromise>
#include <QSysInfo>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <system_error>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/un.h>
#include <unistd.h>

namespace quillon {

namespace {

using std::filesystem::path;

/// A compositor that is well tells what it offers within milliseconds.
constexpr std::chrono::seconds compositorPatience{2};

/// The same for a call on the session bus, in milliseconds.
constexpr int busPatience = 2000;

/// Does the work on a thread of its own, which nothing waits for.
template <typename Work>
auto apart(Work work) {
    using Result = decltype(work());
    const auto promise = std::make_shared<QPromise<Result>>();
    promise->start();
    const auto run = [promise, work = std::move(work)] {
        promise->addResult(work());
        promise->finish();
    };
    try {
        std::thread{run}.detach();
    } catch (const std::system_error&) { // too many threads
        promise->addResult(Result{});
        promise->finish();
    }
    return promise->future();
}

// --- displays
// -------------------------------------------------------------------------------------

bool isOwned(xcb_connection_t* connection, xcb_atom_t selection) {
    const auto cookie = xcb_get_selection_owner(connection, selection);
    const XcbPointer<xcb_get_selection_owner_reply_t> reply{
        xcb_get_selection_owner_reply(connection, cookie, nullptr)};
    return reply && reply->owner != XCB_WINDOW_NONE;
}

XServerTraits lookAtXServer() {
    if (!environment("DISPLAY")) return {.presence = Presence::absent};
    const auto server = X11Connection::open(nullptr);
    if (!server) return {.presence = Presence::absent};
    xcb_connection_t* const connection = server->get();
    XServerTraits traits{.presence = Presence::answers};
    traits.tray = isOwned(connection, managerSelection(connection, "_NET_SYSTEM_TRAY"));
    traits.clipboardOwned = isOwned(connection, internAtom(connection, "CLIPBOARD"));
    return traits;
}

CompositorTraits lookAtCompositor() {
    if (!foundSession().wayland) return {.presence = Presence::absent};
    const auto shell = LayerShell::open();
    if (!shell) return {.presence = Presence::absent};
    if (!shell->waitForOffers(compositorPatience)) return {.presence = Presence::silent};
    return {.presence = Presence::answers, .layers = shell->usable()};
}

ClipboardTraits lookAtClipboard() {
    const auto pasteboard = openPasteboard();
    ClipboardTraits traits;
    traits.formats = pasteboard->formats().result();
    traits.way = pasteboard->way(); // known by now
    return traits;
}

// --- the session bus
// ------------------------------------------------------------------------------

QDBusMessage ask(const QDBusConnection& bus, const char* service, const char* object,
                 const char* interface, const char* method, const QVariantList& arguments = {}) {
    QDBusMessage question =
        QDBusMessage::createMethodCall(QLatin1String{service}, QLatin1String{object},
                                       QLatin1String{interface}, QLatin1String{method});
    question.setArguments(arguments);
    question.setAutoStartService(false);
    return bus.call(question, QDBus::Block, busPatience);
}

/// The names that the bus itself lists.
QStringList names(const QDBusConnection& bus, const char* method) {
    const QDBusReply<QStringList> reply =
        ask(bus, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", method);
    return reply.value();
}

bool hasTrayHost(const QDBusConnection& bus) {
    constexpr const char* watcher = "org.kde.StatusNotifierWatcher";
    const QDBusReply<QDBusVariant> reply =
        ask(bus, watcher, "/StatusNotifierWatcher", "org.freedesktop.DBus.Properties", "Get",
            {QLatin1String{watcher}, QStringLiteral("IsStatusNotifierHostRegistered")});
    return reply.isValid() && reply.value().variant().toBool();
}

/// In the order of PhysicalKey.
constexpr std::array qtKeys{Qt::Key_V, Qt::Key_P, Qt::Key_C};

/// Plasma's register of shortcuts answers with the unique names of a program and its action, and
/// those for people.
std::string lookForHolder(PhysicalKey key) {
    constexpr int friendlyName = 2;
    if (!hasSessionBus()) return {};
    const int keys = static_cast<int>(Qt::CTRL) | static_cast<int>(Qt::ALT) |
                     static_cast<int>(qtKeys.at(static_cast<std::size_t>(key)));
    const QDBusReply<QStringList> reply =
        ask(QDBusConnection::sessionBus(), "org.kde.kglobalaccel", "/kglobalaccel",
            "org.kde.KGlobalAccel", "action", {keys});
    return reply.value().value(friendlyName).toStdString();
}

BusTraits lookAtBus() {
    if (!hasSessionBus()) return {.bus = Presence::absent};
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return {.bus = Presence::absent};
    const QStringList running = names(bus, "ListNames");
    if (running.isEmpty()) return {.bus = Presence::silent}; // it lists at least itself
    const QString keyring = QStringLiteral("org.freedesktop.secrets");
    return {.bus = Presence::answers,
            .keyring =
                running.contains(keyring) || names(bus, "ListActivatableNames").contains(keyring),
            .trayHost = hasTrayHost(bus)};
}

// --- files and sound
// ------------------------------------------------------------------------------

/// Whether what is in the folder, as far as the program writes it, can be changed.
bool holdsWritable(const path& folder) {
    std::error_code error;
    const std::filesystem::directory_iterator entries{folder, error};
    if (error) return false;
    return std::ranges::all_of(entries, [](const std::filesystem::directory_entry& entry) {
        return entry.path().extension() != ".json" || ::access(entry.path().c_str(), W_OK) == 0;
    });
}

FolderTraits lookAtFolder(const path& folder) {
    struct stat status {};
    if (::stat(folder.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) return {};
    FolderTraits traits{.exists = true};
    traits.writable = ::access(folder.c_str(), R_OK | W_OK | X_OK) == 0 && holdsWritable(folder);
    traits.open = (status.st_mode & (S_IRWXG | S_IRWXO)) != 0;
    struct statvfs space {};
    if (::statvfs(folder.c_str(), &space) == 0)
        traits.room = std::uint64_t{space.f_bavail} * space.f_frsize;
    return traits;
}

/// Whether somebody listens at the socket.
bool listens(const path& socket) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (socket.native().size() >= sizeof address.sun_path) return false;
    std::memcpy(address.sun_path, socket.c_str(), socket.native().size());
    const Descriptor end{::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)};
    return ::connect(end.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) ==
           0;
}

bool hasSoundCard() {
    std::error_code error;
    const std::filesystem::directory_iterator devices{"/dev/snd", error};
    return !error && std::ranges::any_of(devices, [](const auto& device) {
        const std::string name = device.path().filename();
        return name.starts_with("pcm") && name.ends_with('p'); // ALSA's names for what plays
    });
}

/// The socket is that of PulseAudio's protocol, which PipeWire speaks as well.
Presence lookAtSound() {
    const auto runtime = environment("XDG_RUNTIME_DIR");
    const bool heard = environment("PULSE_SERVER") ||
                       (runtime && listens(path{*runtime} / "pulse/native")) || hasSoundCard();
    return heard ? Presence::answers : Presence::absent;
}

std::vector<std::string> libraries() {
    std::vector<std::string> names{std::string{"Qt "} + qVersion()};
    if (loadCurl())
        names.push_back(std::string{"libcurl "} + curl().version_info(CURLVERSION_NOW)->version);
    return names;
}

} // namespace

QFuture<SystemTraits> LinuxSurroundings::system() const {
    return apart([] {
        const FoundSession session = foundSession();
        return SystemTraits{.wayland = session.wayland,
                            .desktops = session.desktops,
                            .system = QSysInfo::prettyProductName().toStdString(),
                            .libraries = libraries()};
    });
}

QFuture<XServerTraits> LinuxSurroundings::xServer() const {
    return apart(lookAtXServer);
}

QFuture<CompositorTraits> LinuxSurroundings::compositor() const {
    return apart(lookAtCompositor);
}

QFuture<ClipboardTraits> LinuxSurroundings::clipboard() const {
    return apart(lookAtClipboard);
}

QFuture<BusTraits> LinuxSurroundings::bus() const {
    return apart(lookAtBus);
}

QFuture<FolderTraits> LinuxSurroundings::folder(std::filesystem::path path) const {
    return apart([path = std::move(path)] { return lookAtFolder(path); });
}

QFuture<Presence> LinuxSurroundings::sound() const {
    return apart(lookAtSound);
}

QFuture<std::string> LinuxSurroundings::holder(PhysicalKey key) const {
    return apart([key] { return lookForHolder(key); });
}

std::optional<bool> LinuxSurroundings::isFree(PhysicalKey key) const {
    if (foundSession().wayland) return std::nullopt;
    const auto keys = X11HotKeys::open(nullptr);
    if (!keys) return std::nullopt;
    return keys->registerHotKey(key) != nullptr;
}

} // namespace quillon
