#include "cli/RemoteProgram.h"

#include "base/Translate.h"
#include "cli/TerminalConsole.h"
#include "platform/linux/Application.h"
#include "platform/linux/files/FolderLock.h"

#include <QByteArrayList>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>
#include <QEventLoop>
#include <QTimer>

#include <chrono>
#include <functional>
#include <limits>
#include <string_view>
#include <thread>
#include <utility>

#include <sys/mman.h>
#include <unistd.h>

namespace quillon::RemoteProgram {

namespace {

using namespace std::chrono_literals;

/// The running program may have to wait for the user's keyring, or for a slow network.
constexpr int noTimeout = std::numeric_limits<int>::max();

/// In milliseconds. A program that does not hang answers at once.
constexpr int activationTimeout = 4000;

/// The same for a command, which is told that the program hangs; and how often it asks.
constexpr std::chrono::milliseconds silenceLimit = 5s;

/// How often to look whether the program has ended.
constexpr std::chrono::milliseconds quitInterval = 20ms;

/// A connection to the session bus for one command. Over the connection that Qt shares, nothing
/// comes in until the event loop has turned under the application object that opened it: after a
/// short-lived one like a command's, the program that stays would be deaf for good.
class Line {
public:
    Line() : bus{QDBusConnection::connectToBus(QDBusConnection::SessionBus, name())} {}
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;
    ~Line() { QDBusConnection::disconnectFromBus(name()); }

    QDBusConnection bus;

private:
    static QString name() { return QStringLiteral("command"); }
};

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
    ProgressListener(QDBusConnection bus, TerminalConsole& console) : console_{console} {
        bus.connect(QLatin1String{busName}, QLatin1String{objectPath}, QLatin1String{interfaceName},
                    QStringLiteral("Progress"), this,
                    SLOT(progress(QString, qlonglong, qlonglong)));
        bus.connect(QLatin1String{busName}, QLatin1String{objectPath}, QLatin1String{interfaceName},
                    QStringLiteral("Notice"), this, SLOT(notice(QString)));
        bus.connect(QLatin1String{busName}, QLatin1String{objectPath}, QLatin1String{interfaceName},
                    QStringLiteral("Output"), this, SLOT(output(QString)));
    }

    Q_SLOT void progress(const QString& activity, qlonglong done, qlonglong total) {
        console_.progress(activity.toStdString(), done, total);
    }

    Q_SLOT void notice(const QString& line) { console_.notice(line.toStdString()); }

    Q_SLOT void output(const QString& text) { console_.printNow(text.toStdString()); }

private:
    TerminalConsole& console_;
};

/// Asks the running program again and again whether it still answers.
class Pulse : public QObject {
public:
    /// Calls `stopped` when it does not.
    Pulse(QDBusConnection bus, const std::function<void()>& stopped) : bus_{std::move(bus)} {
        silence_.setSingleShot(true);
        silence_.setInterval(silenceLimit);
        connect(&silence_, &QTimer::timeout, this, stopped);
        feel();
    }

private:
    void feel() {
        silence_.start();
        auto* const asked =
            new QDBusPendingCallWatcher{bus_.asyncCall(message("Ping"), noTimeout), this};
        connect(asked, &QDBusPendingCallWatcher::finished, this, [this, asked] {
            // An error, such as that of a version without this method, is an answer, too.
            asked->deleteLater();
            silence_.stop();
            QTimer::singleShot(silenceLimit, this, [this] { feel(); });
        });
    }

    QDBusConnection bus_;
    QTimer silence_;
};

/// Calls the running program, however long it takes, while the event loop turns. When the program
/// gives no sign of life meanwhile, the answer is the error TimedOut.
QDBusMessage answerTo(const QDBusConnection& bus, const QDBusMessage& call) {
    const QDBusPendingCallWatcher watcher{bus.asyncCall(call, noTimeout)};
    QEventLoop loop;
    QObject::connect(&watcher, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
    const Pulse pulse{bus, [&loop] { loop.quit(); }};
    if (!watcher.isFinished()) loop.exec();
    return watcher.isFinished() ? watcher.reply()
                                : call.createErrorReply(QDBusError::TimedOut, QString{});
}

QDBusMessage handOver(const QDBusConnection& bus, const Invocation& invocation,
                      const QDBusUnixFileDescriptor& input) {
    qDBusRegisterMetaType<QByteArrayList>();
    // Strings of the bus are UTF-8, and the names of files need not be.
    QByteArrayList bytes{QByteArray::fromStdString(std::string{invocation.command->name})};
    for (const std::string& argument : invocation.arguments)
        bytes << QByteArray::fromStdString(argument);
    QStringList words;
    for (const QByteArray& word : bytes)
        words << QString::fromUtf8(word);
    const QVariant file = QVariant::fromValue(input);
    // A program from before the last update may still run. The oldest takes one argument at the
    // most.
    const std::pair<const char*, QVariantList> calls[]{
        {"RunWords", {QVariant::fromValue(bytes), file}},
        {"RunCommand", {words, file}},
        {"Run", {words.value(0), words.value(1), file}}};
    QDBusMessage answer;
    for (const auto& [method, arguments] : calls) {
        QDBusMessage call = message(method);
        call.setArguments(arguments);
        answer = answerTo(bus, call);
        if (QDBusError{answer}.type() != QDBusError::UnknownMethod) break;
    }
    return answer;
}

std::string silentMessage() {
    return translate("Command",
                     "The Quillon that is running does not answer. End it and try again.");
}

std::string olderMessage() {
    return translate("Command", "The Quillon that is running is another version, which does not "
                                "know this command. Quit it and try again.");
}

/// What went wrong where no answer came.
std::string sentenceFor(QDBusError::ErrorType error) {
    if (error == QDBusError::TimedOut) return silentMessage();
    return error == QDBusError::InvalidArgs ? olderMessage() : endedEarlyMessage();
}

/// Prints what the command said and gives its exit code. None when the program was gone before the
/// call arrived and `canRepeat` says that this process can still carry the command out itself.
std::optional<int> passOn(const QDBusPendingReply<int, QString, QString>& reply,
                          TerminalConsole& console, bool canRepeat) {
    if (!reply.isError()) {
        console.printText(reply.argumentAt<1>().toStdString());
        Terminal::printErrorText(reply.argumentAt<2>().toStdString());
        return Terminal::settled(reply.argumentAt<0>());
    }
    if (canRepeat && reply.error().type() == QDBusError::ServiceUnknown) return std::nullopt;
    console.printError(sentenceFor(reply.error().type()));
    return exitFailed;
}

std::optional<int> carryOut(const QDBusConnection& bus, const Invocation& invocation) {
    TerminalConsole console;
    const ProgressListener listener{bus, console};
    std::string secret;
    if (const char* const prompt = invocation.command->secretPrompt)
        secret = console.readSecret(translate("Command", prompt)).value_or("");
    const QDBusUnixFileDescriptor input =
        invocation.readsInput() ? QDBusUnixFileDescriptor{STDIN_FILENO} : inMemory(secret);
    const QDBusMessage answer = handOver(bus, invocation, input);
    console.endProgress();
    // Whoever follows the program does so until it ends.
    if (invocation.follows() && QDBusError{answer}.type() == QDBusError::NoReply) return exitDone;
    // A secret cannot be read from standard input a second time.
    return passOn(answer, console, secret.empty());
}

bool activateOver(const QDBusConnection& bus, std::string_view wanted,
                  const QVariantMap& activationData) {
    QDBusMessage call = message("ActivateAction", "org.freedesktop.Application");
    call << QString::fromStdString(std::string{wanted}) << QVariantList{} << activationData;
    return bus.call(call, QDBus::Block, activationTimeout).type() == QDBusMessage::ReplyMessage;
}

int show(const QDBusConnection& bus, const Command& wanted) {
    if (activateOver(bus, wanted.name, activationData())) return exitDone;
    Terminal::printError(FolderLock::heldMessage());
    return exitFailed;
}

bool isRunning(const QDBusConnection& bus) {
    return bus.interface()->isServiceRegistered(QLatin1String{busName});
}

/// Has the running program end, and not install the update that it may have. None when it has
/// ended, or at least answered.
std::optional<int> quit(const QDBusConnection& bus) {
    QDBusMessage answer = answerTo(bus, message("QuitWithoutUpdate"));
    if (QDBusError{answer}.type() == QDBusError::UnknownMethod)
        answer = answerTo(bus, message("Quit"));
    if (QDBusError{answer}.type() == QDBusError::TimedOut) {
        Terminal::printError(silentMessage());
        return exitFailed;
    }
    // It keeps its name to the very end, when what it was preparing is nobody's any more.
    for (auto waited = 0ms; isRunning(bus) && waited < silenceLimit; waited += quitInterval)
        std::this_thread::sleep_for(quitInterval);
    return std::nullopt;
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
    return activateOver(QDBusConnection::sessionBus(), wanted, activationData);
}

std::string endedEarlyMessage() {
    return translate("Command", "Quillon ended before it was done.");
}

std::optional<int> run(const Invocation& invocation) {
    const auto application = makeApplication<QCoreApplication>();
    const Line line;
    const QDBusConnection& bus = line.bus;
    if (!bus.isConnected()) return std::nullopt;
    if (!isRunning(bus)) return std::nullopt;
    switch (invocation.command->where) {
    case Where::dataHolder:
        return carryOut(bus, invocation);
    case Where::residentOnly:
        return show(bus, *invocation.command);
    case Where::hereAfterQuit:
        return quit(bus);
    case Where::here:
        return std::nullopt;
    }
    return std::nullopt;
}

} // namespace quillon::RemoteProgram

#include "RemoteProgram.moc"
