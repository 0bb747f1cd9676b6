#include "ui/CommandService.h"

#include "cli/Console.h"
#include "cli/RemoteProgram.h"
#include "cli/Terminal.h"
#include "platform/linux/desktop/ActivationToken.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <array>
#include <map>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

/// More than any token has, in bytes.
constexpr std::size_t maximumInput = 4096;

/// The actions of the desktop entry.
const std::map<std::string, CommandService::Wish> wishNames{
    {"send", &DesktopActions::send},
    {"panel", &DesktopActions::showPanel},
    {"settings", &DesktopActions::showSettings}};

/// The first line of a regular file. Of other files, which could make the reader wait, nothing is
/// read.
std::optional<std::string> firstLine(const QDBusUnixFileDescriptor& file) {
    struct stat status {};
    if (::fstat(file.fileDescriptor(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    std::array<char, maximumInput> bytes{};
    const ssize_t count = ::pread(file.fileDescriptor(), bytes.data(), bytes.size(), 0);
    if (count <= 0) return std::nullopt;
    const std::string text{bytes.data(), static_cast<std::size_t>(count)};
    return text.substr(0, text.find('\n'));
}

/// Collects what a command prints, for the process that handed it over.
class DistantConsole final : public Console {
public:
    /// `caller` is the process's name on the bus.
    DistantConsole(const QDBusUnixFileDescriptor& input, QString caller)
        : input_{input},
          caller_{std::move(caller)} {}

    std::string output;
    std::string errors;

    void print(std::string_view line) override { output += Terminal::harmless(line) + '\n'; }
    void printError(std::string_view line) override { errors += Terminal::harmless(line) + '\n'; }
    void notice(std::string_view line) override {
        signal("Notice", {QString::fromStdString(Terminal::harmless(line))});
    }
    void printText(std::string_view text) override { output += text; }
    [[nodiscard]] std::optional<std::string> readSecret(std::string_view /*prompt*/) override {
        return firstLine(input_);
    }
    void progress(std::string_view activity, qint64 done, qint64 total) override {
        if (!ended_) signal("Progress", {QString::fromUtf8(activity), done, total});
    }
    void endProgress() override { ended_ = true; }

private:
    /// Only to this caller: others may be waiting for their own commands.
    void signal(const char* name, const QVariantList& arguments) const {
        QDBusMessage signal = QDBusMessage::createTargetedSignal(
            caller_, QLatin1String{RemoteProgram::objectPath},
            QLatin1String{RemoteProgram::interfaceName}, QLatin1String{name});
        signal.setArguments(arguments);
        QDBusConnection::sessionBus().send(signal);
    }

    QDBusUnixFileDescriptor input_;
    QString caller_;
    bool ended_ = false;
};

/// The interface by which desktops start an application over the bus.
class ActivationAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit ActivationAdaptor(CommandService& service)
        : QDBusAbstractAdaptor{&service},
          service_{service} {}

public Q_SLOTS:
    void Activate(const QVariantMap& platformData) {
        service_.wish(&DesktopActions::showSettings, platformData);
    }
    void ActivateAction(const QString& action, const QVariantList& /*parameter*/,
                        const QVariantMap& platformData) {
        service_.wishByName(action, platformData);
    }

private:
    CommandService& service_;
};

} // namespace

CommandService::CommandService(std::function<void()> quit) : quit_{std::move(quit)} {
    new ActivationAdaptor{*this}; // owned by this object
}

CommandService::Publication CommandService::publish() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return Publication::noBus;
    // Qt knows the type by its name only once somebody has used it.
    qRegisterMetaType<QDBusUnixFileDescriptor>();
    // The object comes before the name: who sees the name may call at once.
    bus.registerObject(QLatin1String{RemoteProgram::objectPath}, this,
                       QDBusConnection::ExportScriptableContents | QDBusConnection::ExportAdaptors);
    if (bus.registerService(QLatin1String{RemoteProgram::busName})) return Publication::done;
    return bus.interface()->isServiceRegistered(QLatin1String{RemoteProgram::busName})
               ? Publication::takenByAnother
               : Publication::noBus;
}

void CommandService::serve(CommandContext context, DesktopActions actions) {
    context_.emplace(std::move(context));
    actions_ = std::move(actions);
    for (const Wish waiting : std::exchange(wishes_, {}))
        (actions_.*waiting)();
    for (Call& call : std::exchange(early_, {}))
        take(std::move(call));
}

void CommandService::wish(Wish wish, const QVariantMap& platformData) {
    ActivationToken::keep(
        platformData.value(QStringLiteral("activation-token")).toString().toUtf8());
    if (!context_) return wishes_.push_back(wish);
    (actions_.*wish)();
}

void CommandService::wishByName(const QString& action, const QVariantMap& platformData) {
    const auto found = wishNames.find(action.toStdString());
    if (found != wishNames.end()) return wish(found->second, platformData);
    sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("There is no such action."));
}

int CommandService::RunCommand(const QStringList& arguments, const QDBusUnixFileDescriptor& input,
                               QString& /*output*/, QString& /*errors*/) {
    std::vector<std::string> words;
    for (const QString& argument : arguments)
        words.push_back(argument.toStdString());
    const auto invocation = parseCommandLine(words);
    if (!invocation || invocation->command->where != Where::dataHolder) {
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("That is no command."));
        return exitUsage;
    }
    setDelayedReply(true);
    Call call{.invocation = *invocation, .input = input, .message = message()};
    call.caller = std::make_shared<QDBusServiceWatcher>(
        call.message.service(), connection(), QDBusServiceWatcher::WatchForUnregistration);
    QObject::connect(call.caller.get(), &QDBusServiceWatcher::serviceUnregistered, this,
                     [stop = call.stop]() mutable { stop.request_stop(); });
    // The caller may have given up before this program came to read the call.
    auto* const asked = new QDBusPendingCallWatcher{
        connection().interface()->asyncCall(QStringLiteral("NameHasOwner"), call.message.service()),
        this};
    QObject::connect(asked, &QDBusPendingCallWatcher::finished, this, [this, asked, call] {
        asked->deleteLater();
        const QDBusPendingReply<bool> waits = *asked;
        if (waits.isError() || waits.value()) take(call);
    });
    return exitDone;
}

int CommandService::Run(const QString& command, const QString& argument,
                        const QDBusUnixFileDescriptor& input, QString& output, QString& errors) {
    QStringList words{command};
    if (!argument.isEmpty()) words << argument;
    return RunCommand(words, input, output, errors);
}

void CommandService::Quit() {
    quit_();
}

void CommandService::QuitWithoutUpdate() {
    if (actions_.dropUpdate) actions_.dropUpdate();
    quit_();
}

void CommandService::take(Call call) {
    if (!context_) return early_.push_back(std::move(call));
    if (call.invocation.onlyReads() || !call.invocation.command->waitsItsTurn) {
        carryOut(std::move(call));
        return;
    }
    queue_.push_back(std::move(call));
    if (!working_) work();
}

QCoro::Task<> CommandService::work() {
    working_ = true;
    while (!queue_.empty()) {
        Call call = std::move(queue_.front());
        queue_.pop_front();
        if (call.stop.stop_requested()) continue;
        co_await carryOut(std::move(call));
    }
    working_ = false;
}

QCoro::Task<> CommandService::carryOut(Call call) {
    const auto console = std::make_shared<DistantConsole>(call.input, call.message.service());
    CommandContext context = *context_;
    context.console = console;
    context.stop = call.stop.get_token();
    const int code = co_await runCommand(call.invocation, context);
    QDBusConnection::sessionBus().send(call.message.createReply(
        {code, QString::fromStdString(console->output), QString::fromStdString(console->errors)}));
}

} // namespace quillon

#include "CommandService.moc"
