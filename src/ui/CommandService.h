#pragma once

#include "cli/Commands.h"

#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QVariantMap>

#include <deque>
#include <functional>
#include <optional>
#include <vector>

namespace quillon {

/// What the desktop may ask of the program by its name on the bus.
struct DesktopActions {
    std::function<void()> showSettings;
    std::function<void()> showPanel;
    std::function<void()> send;
};

/// Carries out, one after another, the commands that other processes of the program hand over on
/// the session bus. The name on the bus also makes this program the session's only one.
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

    /// Takes the name. Commands wait from now on.
    [[nodiscard]] Publication publish();
    /// Carries out what waits and what comes. The context's console is not used: each command has
    /// one of its own.
    void serve(CommandContext context, DesktopActions actions);

    using Wish = std::function<void()> DesktopActions::*;
    /// The user wants this, and has given the desktop's leave to take the focus with it
    /// (org.freedesktop.Application's platform data). Waits until the program serves.
    void wish(Wish wish, const QVariantMap& platformData);
    /// The same by the name of an action of the desktop entry: "send", "panel" or
    /// "settings".
    void wishByName(const QString& action, const QVariantMap& platformData);

public Q_SLOTS:
    /// A command with its argument, as the command line takes them, and with what it reads from
    /// standard input. Gives the exit code, and what went to standard output and standard error.
    /// Meanwhile the caller is sent the signal Progress with how many bytes of what the command
    /// does, as in "Sending…", are done, and of how many.
    Q_SCRIPTABLE int Run(const QString& command, const QString& argument,
                         const QDBusUnixFileDescriptor& input, QString& output, QString& errors);
    Q_SCRIPTABLE void Quit();

private:
    struct Call {
        Invocation invocation;
        QDBusUnixFileDescriptor input;
        QDBusMessage message;
    };

    QCoro::Task<> work();

    std::optional<CommandContext> context_;
    DesktopActions actions_;
    std::vector<Wish> wishes_;
    std::function<void()> quit_;
    std::deque<Call> calls_;
    bool working_ = false;
};

} // namespace quillon
