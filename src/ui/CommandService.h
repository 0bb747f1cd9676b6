#pragma once

#include "cli/Commands.h"
#include "state/SendItem.h"

#include <QByteArrayList>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QVariantMap>

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <vector>

namespace quillon {

/// What the desktop may ask of the program by its name on the bus.
struct DesktopActions {
    std::function<void()> showSettings;
    std::function<void()> showPanel;
    std::function<void()> send;
    /// Forgets the update that waits to be installed. May be empty.
    std::function<void()> dropUpdate{};
};

/// Carries out the commands that other processes of the program hand over on the session bus: one
/// after another those that change something, and at once those that only read, and those that are
/// turned away while something is at work. When whoever handed a command over goes away, as after
/// Ctrl-C, the command is asked to stop. The name on the bus also makes this program the session's
/// only one.
class CommandService : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "dev.vostrel.quillon")

public:
    enum class Publication {
        done,
        takenByAnother, ///< another program of the session has the name
        noBus,
    };

    explicit CommandService(std::function<void()> quit);

    /// Takes the name. Commands that come before serve() wait for it.
    [[nodiscard]] Publication publish();
    /// Carries out what waits and what comes. Each command gets a console of its own in place of
    /// the context's.
    void serve(CommandContext context, DesktopActions actions);

    using Wish = std::function<void()> DesktopActions::*;
    /// Does what the user wants once the program serves. The platform data, as
    /// org.freedesktop.Application defines them, may hold the desktop's leave to take the focus.
    void wish(Wish wish, const QVariantMap& platformData);
    /// The same by the name of an action of the desktop entry: "send", "panel" or
    /// "settings".
    void wishByName(const QString& action, const QVariantMap& platformData);
    /// Sends the files that these URIs name, as an application that is told to open them.
    void open(const QStringList& uris);

public Q_SLOTS:
    // For scripts and other programs; packaging/dev.vostrel.quillon.xml tells what each promises.

    /// Sends files and text, and answers with the entries in the history when that is done.
    Q_SCRIPTABLE QString Send(const QStringList& files, const QString& text,
                              const QVariantMap& options);
    /// The JSON that `quillon status --json` prints.
    Q_SCRIPTABLE QString Status();

    // For the program's own command line.

    /// Carries out the command line of these words, with what it reads from standard input. Gives
    /// the exit code, and what went to standard output and standard error. Meanwhile the caller is
    /// sent the signal Progress with how many bytes of what the command does, as in "Sending…", are
    /// done, and of how many; and Output with what is to be printed at once.
    Q_SCRIPTABLE int RunWords(const QByteArrayList& arguments, const QDBusUnixFileDescriptor& input,
                              QString& output, QString& errors);
    /// The same for the command lines of older versions, whose words are UTF-8.
    Q_SCRIPTABLE int RunCommand(const QStringList& arguments, const QDBusUnixFileDescriptor& input,
                                QString& output, QString& errors);
    /// The same for still older ones, which have one argument at the most.
    Q_SCRIPTABLE int Run(const QString& command, const QString& argument,
                         const QDBusUnixFileDescriptor& input, QString& output, QString& errors);
    Q_SCRIPTABLE void Quit();
    /// The same without installing the update that waits: what is removed must not come back.
    Q_SCRIPTABLE void QuitWithoutUpdate();
    /// Does nothing; an answer is a sign of life.
    Q_SCRIPTABLE void Ping() {}

Q_SIGNALS:
    // Sent to everybody, whoever set the send off; see packaging/dev.vostrel.quillon.xml.
    Q_SCRIPTABLE void SendStarted(int items);
    Q_SCRIPTABLE void SendProgress(qlonglong done, qlonglong total);
    Q_SCRIPTABLE void SendFinished(const QString& entries);

private:
    struct Call {
        Invocation invocation;
        QDBusUnixFileDescriptor input;
        QDBusMessage message;
        std::stop_source stop{};
        /// Sees whoever called go away.
        std::shared_ptr<QDBusServiceWatcher> caller{};
    };

    /// Calls `then` once the program serves.
    void whenServing(std::function<void()> then);
    /// Takes in the command line of a call; false when there is no such command.
    bool handle(const std::vector<std::string>& words, const QDBusUnixFileDescriptor& input);
    void take(Call call);
    /// Tells everybody of all sends from now on.
    void announceSends();
    QCoro::Task<> send(QDBusMessage call, std::vector<SendItem> items, SendWishes wishes);
    QCoro::Task<> sendOpened(std::vector<SendItem> items);
    QCoro::Task<> tellStatus(QDBusMessage call);
    /// Carries out the queue's calls until there are none.
    QCoro::Task<> work();
    QCoro::Task<> carryOut(Call call);

    std::optional<CommandContext> context_;
    DesktopActions actions_;
    std::function<void()> quit_;
    /// What came before serve().
    std::vector<std::function<void()>> early_;
    std::deque<Call> queue_;
    bool working_ = false;
};

} // namespace quillon
