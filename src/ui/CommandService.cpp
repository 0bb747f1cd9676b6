#include "ui/CommandService.h"

#include "cli/Console.h"
#include "cli/RemoteProgram.h"
#include "cli/Reports.h"
#include "cli/SendCommand.h"
#include "cli/StandardInput.h"
#include "cli/Terminal.h"
#include "core/Core.h"
#include "platform/linux/desktop/ActivationToken.h"
#include "ui/GivenItems.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMetaType>
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

/// The option of Send that names the topic for everything.
constexpr QLatin1String topicOption{"topic"};

/// The name of the error that tells why nothing was sent.
constexpr QLatin1String notSent{"dev.vostrel.quillon.Error.NotSent"};

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
    void printNow(std::string_view text) override { signal("Output", {QString::fromUtf8(text)}); }
    [[nodiscard]] QFuture<std::optional<QByteArray>> readInput(qsizetype limit) override {
        return StandardInput::held(input_.fileDescriptor(), limit);
    }
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

    void Open(const QStringList& uris, const QVariantMap& /*platformData*/) { service_.open(uris); }

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
    qDBusRegisterMetaType<QByteArrayList>();
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
    announceSends();
    for (const auto& waiting : std::exchange(early_, {}))
        waiting();
}

void CommandService::whenServing(std::function<void()> then) {
    if (!context_) return early_.push_back(std::move(then));
    then();
}

void CommandService::wish(Wish wish, const QVariantMap& platformData) {
    ActivationToken::keep(
        platformData.value(QStringLiteral("activation-token")).toString().toUtf8());
    whenServing([this, wish] { (actions_.*wish)(); });
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
    return handle(words, input) ? exitDone : exitUsage;
}

int CommandService::RunWords(const QByteArrayList& arguments, const QDBusUnixFileDescriptor& input,
                             QString& /*output*/, QString& /*errors*/) {
    std::vector<std::string> words;
    for (const QByteArray& argument : arguments)
        words.push_back(argument.toStdString());
    return handle(words, input) ? exitDone : exitUsage;
}

bool CommandService::handle(const std::vector<std::string>& words,
                            const QDBusUnixFileDescriptor& input) {
    const auto invocation = parseCommandLine(words);
    if (!invocation || invocation->command->where != Where::dataHolder) {
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("That is no command."));
        return false;
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
    return true;
}

int CommandService::Run(const QString& command, const QString& argument,
                        const QDBusUnixFileDescriptor& input, QString& output, QString& errors) {
    QStringList words{command};
    if (!argument.isEmpty()) words << argument;
    return RunCommand(words, input, output, errors);
}

QString CommandService::Send(const QStringList& files, const QString& text,
                             const QVariantMap& options) {
    auto items = givenItems(files, text);
    SendWishes wishes{.via = Trigger::command};
    if (options.contains(topicOption))
        wishes.topic = fromRawValue<TopicKind>(options.value(topicOption).toString().toStdString());
    // An option that is not known here may be what matters to the caller.
    if (!items || options.size() != (wishes.topic ? 1 : 0)) {
        sendErrorReply(QDBusError::InvalidArgs,
                       QStringLiteral("There is nothing to send, or it cannot be sent like this."));
        return {};
    }
    setDelayedReply(true);
    whenServing([this, call = message(), given = *std::move(items), wishes = std::move(wishes)] {
        send(call, given, wishes);
    });
    return {};
}

QCoro::Task<> CommandService::send(QDBusMessage call, std::vector<SendItem> items,
                                   SendWishes wishes) {
    QDBusMessage answer;
    try {
        QCoro::Task<std::vector<Sent>> sending =
            sendNow(*context_, std::move(items), std::move(wishes));
        const std::vector<Sent> entries = co_await sending;
        answer = call.createReply(QString::fromStdString(historyJson(entries)).trimmed());
    } catch (const std::exception& error) {
        answer = call.createErrorReply(notSent, QString::fromUtf8(error.what()));
    }
    QDBusConnection::sessionBus().send(answer);
}

void CommandService::open(const QStringList& uris) {
    auto items = givenItems(uris, {});
    if (!items) {
        return sendErrorReply(QDBusError::InvalidArgs,
                              QStringLiteral("Only files of this computer can be sent."));
    }
    whenServing([this, given = *std::move(items)] { sendOpened(given); });
}

QCoro::Task<> CommandService::sendOpened(std::vector<SendItem> items) {
    SendWishes wishes{.via = Trigger::button};
    try {
        QCoro::Task<std::vector<Sent>> sending =
            sendNow(*context_, std::move(items), std::move(wishes));
        co_await sending;
    } catch (const std::exception&) {
        // The banner has told what is wrong, and nobody else listens.
    }
}

QString CommandService::Status() {
    setDelayedReply(true);
    whenServing([this, call = message()] { tellStatus(call); });
    return {};
}

QCoro::Task<> CommandService::tellStatus(QDBusMessage call) {
    const auto console =
        std::make_shared<DistantConsole>(QDBusUnixFileDescriptor{}, call.service());
    CommandContext context = *context_;
    context.console = console;
    QCoro::Task<int> telling = runCommand(*parseCommandLine({"status", "--json"}), context);
    co_await telling;
    const QDBusMessage answer = call.createReply(QString::fromStdString(console->output).trimmed());
    QDBusConnection::sessionBus().send(answer);
}

void CommandService::announceSends() {
    const Store* const store = &context_->core.store;
    connect(store, &Store::sendStarted, this, &CommandService::SendStarted);
    connect(store, &Store::sendProgressed, this, &CommandService::SendProgress);
    connect(store, &Store::sendEnded, this, [this](const std::vector<Sent>& entries) {
        Q_EMIT SendFinished(QString::fromStdString(historyJson(entries)).trimmed());
    });
}

void CommandService::Quit() {
    quit_();
}

void CommandService::QuitWithoutUpdate() {
    if (actions_.dropUpdate) actions_.dropUpdate();
    quit_();
}

void CommandService::take(Call call) {
    if (!context_) return whenServing([this, call] { take(call); });
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
