#pragma once

#include "platform/linux/keyring/GlibSteps.h"

#include <QProcess>
#include <QTemporaryDir>

#include <chrono>
#include <map>
#include <mutex>
#include <set>
#include <string>

namespace quillon::test {

/// A session bus for one test, on which nothing is started by itself. The environment points to it
/// while it lives, and to no bus at all afterwards.
class SessionBus {
public:
    SessionBus();
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;
    ~SessionBus();

    /// Starts the real keyring, empty and unlocked.
    void startKeyring();

    /// Runs the command line tool of the keyring to its end, and gives its output.
    QByteArray secretTool(const QStringList& arguments, const QByteArray& input = {});

    /// A connection of the test's own.
    [[nodiscard]] GlibPointer<GDBusConnection> connect() const;

private:
    QTemporaryDir folder_;
    QProcess bus_;
    QProcess keyring_;
    std::string address_;
};

/// Stands in for the Secret Service and gives one fixed answer to each method, as slowly as a test
/// wants; whoever calls a method without one waits for ever.
class ScriptedSecretService {
public:
    /// From method names to the answers in GVariant's text format; an empty one is an error.
    using Answers = std::map<std::string, std::string>;

    ScriptedSecretService(const SessionBus& bus, Answers answers,
                          std::chrono::milliseconds slowness = {});
    ScriptedSecretService(const ScriptedSecretService&) = delete;
    ScriptedSecretService& operator=(const ScriptedSecretService&) = delete;
    ~ScriptedSecretService();

    /// Whether someone has called the method.
    [[nodiscard]] bool wasAsked(const std::string& method) const;

private:
    GDBusMessage* take(GDBusMessage* message);

    GlibPointer<GDBusConnection> connection_;
    Answers answers_;
    std::chrono::milliseconds slowness_;
    mutable std::mutex mutex_; ///< guards asked_
    std::set<std::string> asked_;
    guint filter_ = 0;
};

} // namespace quillon::test
