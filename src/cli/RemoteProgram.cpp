#include "cli/RemoteProgram.h"

#include "base/Translate.h"
#include "cli/TerminalConsole.h"
#include "platform/linux/Application.h"
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
#include <string_view>
#include <utility>

#include <sys/mman.h>
#include <unistd.h>

namespace quillon::RemoteProgram {

namespace {

/// The running program may have to wait for the user's keyring, or for a slow network.
constexpr int noTimeout = std::numeric_limits<int>::max();

/// In milliseconds. A program that does not hang answers at once.
constexpr int activationTimeout = 4000;

QDBusMessage message(const char* method, const char* interface = interfaceName) {
    QDBusMessage call =
        QDBusMessage::createMethodCall(QLatin1String{busName}, QLatin1String{objectPath},
                                       QLatin1String{interface}, QLatin1String{method});
    call.setAutoStartService(false);
    return call;
}

/// A file in memory that holds the secret: others may watch the messages on the bus.
QDBusUnixFileDescriptor inMemory(const std::string& secret) {
    const int file = ::memfd_create("quillon", MFD_CLOEXEC);
    QDBusUnixFileDescriptor descriptor;
    descriptor.giveFileDescriptor(file);
    if (::write(file, secret.data(), secret.size()) != static_cast<ssize_t>(secret.size()))
        return {};
    ::lseek(file, 0, SEEK_SET);
    return descriptor;
}

/// Shows how far the command has come and what it waits for, as the running program tells it.
class ProgressListener : public QObject {
    Q_OBJECT

public:
    explicit ProgressListener(TerminalConsole& console) : console_{console} {
        QDBusConnection::sessionBus().connect(
            QLatin1String{busName}, QLatin1String{objectPath}, QLatin1String{interfaceName},
            QStringLiteral("Progress"), this, SLOT(progress(QString, qlonglong, qlonglong)));
        QDBusConnection::sessionBus().connect(
            QLatin1String{busName}, QLatin1String{objectPath}, QLatin1String{interfaceName},
            QStringLiteral("Notice"), this, SLOT(notice(QString)));
    }

    Q_SLOT void progress(const QString& activity, qlonglong done, qlonglong total) {
        console_.progress(activity.toStdString(), done, total);
    }

    Q_SLOT void notice(const QString& line) { console_.notice(line.toStdString()); }

private:
    TerminalConsole& console_;
};

/// Calls the running program, however long it takes; the event loop turns meanwhile.
QDBusMessage answerTo(const QDBusMessage& call) {
    const QDBusPendingCallWatcher watcher{QDBusConnection::sessionBus().asyncCall(call, noTimeout)};
    QEventLoop loop;
    QObject::connect(&watcher, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
    if (!watcher.isFinished()) loop.exec();
    return watcher.reply();
}

QDBusMessage handOver(const Invocation& invocation, const QDBusUnixFileDescriptor& input) {
    QStringList words{QString::fromStdString(std::string{invocation.command->name})};
    for (const std::string& argument : invocation.arguments)
        words << QString::fromStdString(argument);
    QDBusMessage call = message("RunCommand");
    call << words << QVariant::fromValue(input);
    const QDBusMessage answer = answerTo(call);
    if (QDBusError{answer}.type() != QDBusError::UnknownMethod) return answer;
    // A program from before the last update still runs, and takes one argument at the most.
    QDBusMessage older = message("Run");
    older << words.value(0) << words.value(1) << QVariant::fromValue(input);
    return answerTo(older);
}

/// Prints what the command said and gives its exit code. None when the program was gone before the
/// call arrived and `canRepeat` says that this process can still carry the command out itself.
std::optional<int> passOn(const QDBusPendingReply<int, QString, QString>& reply,
                          TerminalConsole& console, bool canRepeat) {
    if (!reply.isError()) {
        console.printText(reply.argumentAt<1>().toStdString());
        Terminal::printErrorText(reply.argumentAt<2>().toStdString());
        return reply.argumentAt<0>();
    }
    if (canRepeat && reply.error().type() == QDBusError::ServiceUnknown) return std::nullopt;
    console.printError(translate("Command", "Quillon ended before it was done."));
    return exitFailed;
}

std::optional<int> carryOut(const Invocation& invocation) {
    TerminalConsole console;
    const ProgressListener listener{console};
    std::string secret;
    if (const char* const prompt = invocation.command->secretPrompt)
        secret = console.readSecret(translate("Command", prompt)).value_or("");
    const QDBusMessage answer = handOver(invocation, inMemory(secret));
    console.endProgress();
    // A secret cannot be read from standard input a second time.
    return passOn(answer, console, secret.empty());
}

int show(const Command& wanted) {
    if (activate(wanted.name, activationData())) return exitDone;
    Terminal::printError(FolderLock::heldMessage());
    return exitFailed;
}

} // namespace

QVariantMap activationData() {
    QVariantMap data;
    for (const auto& [key, variable] : {std::pair{"activation-token", "XDG_ACTIVATION_TOKEN"},
                                        std::pair{"desktop-startup-id", "DESKTOP_STARTUP_ID"}}) {
        if (qEnvironmentVariableIsSet(variable))
            data[QLatin1String{key}] = qEnvironmentVariable(variable);
    }
    return data;
}

bool activate(std::string_view wanted, const QVariantMap& activationData) {
    QDBusMessage call = message("ActivateAction", "org.freedesktop.Application");
    call << QString::fromStdString(std::string{wanted}) << QVariantList{} << activationData;
    return QDBusConnection::sessionBus().call(call, QDBus::Block, activationTimeout).type() ==
           QDBusMessage::ReplyMessage;
}

std::optional<int> run(const Invocation& invocation) {
    const auto application = makeApplication<QCoreApplication>();
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return std::nullopt;
    if (!bus.interface()->isServiceRegistered(QLatin1String{busName})) return std::nullopt;
    switch (invocation.command->where) {
    case Where::dataHolder:
        return carryOut(invocation);
    case Where::residentOnly:
        return show(*invocation.command);
    case Where::hereAfterQuit:
        // The running program still holds the data for a moment.
        bus.call(message("Quit"));
        return std::nullopt;
    case Where::here:
        return std::nullopt;
    }
    return std::nullopt;
}

} // namespace quillon::RemoteProgram

#include "RemoteProgram.moc"
