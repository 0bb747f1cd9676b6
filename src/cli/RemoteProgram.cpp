#include "cli/RemoteProgram.h"

#include "base/Translate.h"
#include "cli/TerminalConsole.h"
#include "platform/linux/files/FolderLock.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>
#include <QEventLoop>

#include <limits>
#include <utility>

#include <sys/mman.h>
#include <unistd.h>

namespace quillon::RemoteProgram {

namespace {

/// The running program may have to wait for the user's keyring, or for a slow network.
constexpr int noTimeout = std::numeric_limits<int>::max();

/// A program that is well answers at once; in milliseconds.
constexpr int activationTimeout = 4000;

QDBusMessage message(const char* method) {
    QDBusMessage call =
        QDBusMessage::createMethodCall(QLatin1String{busName}, QLatin1String{objectPath},
                                       QLatin1String{interfaceName}, QLatin1String{method});
    call.setAutoStartService(false);
    return call;
}

/// Hands over the secret as a file in memory, so that it is in no message that others may watch.
QDBusUnixFileDescriptor inMemory(const std::string& secret) {
    const int file = ::memfd_create("quillon", MFD_CLOEXEC);
    QDBusUnixFileDescriptor descriptor;
    descriptor.giveFileDescriptor(file);
    if (::write(file, secret.data(), secret.size()) != static_cast<ssize_t>(secret.size()))
        return {};
    ::lseek(file, 0, SEEK_SET);
    return descriptor;
}

/// Passes on how far the command has come.
class ProgressListener : public QObject {
    Q_OBJECT

public:
    explicit ProgressListener(TerminalConsole& console) : console_{console} {
        QDBusConnection::sessionBus().connect(
            QLatin1String{busName}, QLatin1String{objectPath}, QLatin1String{interfaceName},
            QStringLiteral("Progress"), this, SLOT(progress(QString, qlonglong, qlonglong)));
    }

private Q_SLOTS:
    void progress(const QString& activity, qlonglong done, qlonglong total) {
        console_.progress(activity.toStdString(), done, total);
    }

private:
    TerminalConsole& console_;
};

/// `canRepeat`: whether this process can still carry the command out itself.
std::optional<int> judge(const QDBusPendingReply<int, QString, QString>& reply,
                         TerminalConsole& console, bool canRepeat) {
    if (!reply.isError()) {
        console.printText(reply.argumentAt<1>().toStdString());
        Terminal::printErrorText(reply.argumentAt<2>().toStdString());
        return reply.argumentAt<0>();
    }
    // Gone before the call arrived.
    if (canRepeat && reply.error().type() == QDBusError::ServiceUnknown) return std::nullopt;
    console.printError(translate("Command", "Quillon ended before it was done."));
    return exitFailed;
}

std::optional<int> carryOut(const Invocation& invocation) {
    TerminalConsole console;
    const ProgressListener listener{console};
    std::string secret;
    if (invocation.command == Command::connect)
        secret = console.readSecret(tokenPrompt()).value_or("");
    QDBusMessage call = message("Run");
    call << QString::fromStdString(std::string{commandName(invocation.command)})
         << QString::fromStdString(invocation.argument) << QVariant::fromValue(inMemory(secret));
    const QDBusPendingCallWatcher watcher{QDBusConnection::sessionBus().asyncCall(call, noTimeout)};
    QEventLoop loop;
    QObject::connect(&watcher, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
    if (!watcher.isFinished()) loop.exec();
    console.endProgress();
    // What was read from standard input cannot be read again.
    return judge(watcher, console, secret.empty());
}

int show(Command wanted) {
    const std::string name{commandName(wanted)};
    if (activate(name.c_str(), activationData())) return exitDone;
    Terminal::printError(FolderLock::heldMessage());
    return exitFailed;
}

/// Asks the running program to end; whoever needs its data waits until it has.
void quit() {
    QDBusConnection::sessionBus().call(message("Quit"));
}

} // namespace

std::string tokenPrompt() {
    return translate("Command", "Bot token: ");
}

QVariantMap activationData() {
    QVariantMap data;
    for (const auto& [key, variable] : {std::pair{"activation-token", "XDG_ACTIVATION_TOKEN"},
                                        std::pair{"desktop-startup-id", "DESKTOP_STARTUP_ID"}}) {
        if (qEnvironmentVariableIsSet(variable))
            data[QLatin1String{key}] = qEnvironmentVariable(variable);
    }
    return data;
}

bool activate(const char* wanted, const QVariantMap& activationData) {
    QDBusMessage call = QDBusMessage::createMethodCall(
        QLatin1String{busName}, QLatin1String{objectPath},
        QStringLiteral("org.freedesktop.Application"), QStringLiteral("ActivateAction"));
    call.setAutoStartService(false);
    call << QString::fromLatin1(wanted) << QVariantList{} << activationData;
    return QDBusConnection::sessionBus().call(call, QDBus::Block, activationTimeout).type() ==
           QDBusMessage::ReplyMessage;
}

std::optional<int> run(const Invocation& invocation) {
    int argc = 1;
    char name[] = "quillon";
    char* argv[] = {name, nullptr};
    const QCoreApplication application{argc, argv};
    loadCatalogue();
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return std::nullopt;
    if (!bus.interface()->isServiceRegistered(QLatin1String{busName})) return std::nullopt;
    if (worksOnState(invocation.command)) return carryOut(invocation);
    if (invocation.command == Command::settings || invocation.command == Command::panel)
        return show(invocation.command);
    // The program would write again what is removed.
    if (invocation.command == Command::uninstall) quit();
    return std::nullopt;
}

} // namespace quillon::RemoteProgram

#include "RemoteProgram.moc"
