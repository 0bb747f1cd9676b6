#include "Program.h"

#include "support/Await.h"
#include "support/Files.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDir>
#include <QElapsedTimer>

#include <array>

#include <pty.h>
#include <termios.h>
#include <unistd.h>
#include <utmp.h>

namespace quillon::test {

constexpr int longestRun = 60'000; // ms, on a machine that is busy with other things

QStringList toList(const std::vector<std::string>& arguments) {
    QStringList list;
    for (const std::string& argument : arguments)
        list << QString::fromStdString(argument);
    return list;
}

QStringList words(const std::string& line) {
    return QString::fromStdString(line).split(QLatin1Char{' '});
}

Program::Program(const std::string& botApi, const std::filesystem::path& data)
    : environment{QProcessEnvironment::systemEnvironment()},
      executable{data / "quillon"} {
    std::filesystem::create_symlink(QUILLON, executable);
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    environment.insert(QStringLiteral("QUILLON_BOT_API"), QString::fromStdString(botApi));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), QString::fromStdString(data.native()));
    environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
    environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("en"));
}

std::unique_ptr<QProcess> Program::start(const std::vector<std::string>& arguments) const {
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(environment);
    process->setStandardInputFile(QProcess::nullDevice());
    process->start(QString::fromStdString(executable), toList(arguments));
    EXPECT_TRUE(process->waitForStarted());
    return process;
}

Finished Program::finish(QProcess& process) {
    EXPECT_TRUE(process.state() == QProcess::NotRunning || process.waitForFinished(longestRun))
        << "the program hangs";
    Finished run;
    run.code = process.exitStatus() == QProcess::NormalExit ? process.exitCode()
                                                            : 128 + process.exitCode();
    run.out = process.readAllStandardOutput().toStdString();
    run.err = process.readAllStandardError().toStdString();
    return run;
}

Finished Program::run(const std::vector<std::string>& arguments, const std::string& input) const {
    QElapsedTimer timer;
    timer.start();
    QProcess process;
    process.setProcessEnvironment(environment);
    // A pipe is content for commands that send.
    if (input.empty()) process.setStandardInputFile(QProcess::nullDevice());
    process.start(QString::fromStdString(executable), toList(arguments));
    if (!input.empty()) process.write(input.data(), static_cast<qint64>(input.size()));
    process.closeWriteChannel();
    Finished run = finish(process);
    run.took = std::chrono::milliseconds{timer.elapsed()};
    return run;
}

Finished Program::runOnTerminal(const std::vector<std::string>& arguments,
                                const std::string& typed) const {
    int terminal = -1;
    int programs = -1;
    EXPECT_EQ(::openpty(&terminal, &programs, nullptr, nullptr, nullptr), 0);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setChildProcessModifier([programs] { ::login_tty(programs); });
    process.start(QString::fromStdString(executable), toList(arguments));
    ::close(programs);
    std::string shown;
    std::string left = typed;
    std::array<char, 4096> buffer{};
    // The terminal fails to be read once the last process on it has ended.
    for (ssize_t count = 0; (count = ::read(terminal, buffer.data(), buffer.size())) > 0;) {
        shown.append(buffer.data(), static_cast<std::size_t>(count));
        if (left.empty()) continue;
        EXPECT_EQ(::write(terminal, left.data(), left.size()), static_cast<ssize_t>(left.size()));
        left.clear();
    }
    Finished run = finish(process);
    run.out = shown;
    termios settings{};
    run.echoes = ::tcgetattr(terminal, &settings) == 0 && (settings.c_lflag & ECHO) != 0;
    ::close(terminal);
    return run;
}

std::vector<int> Program::processes() const {
    std::vector<int> found;
    const std::string wanted = executable.native() + '\0';
    for (const QString& entry : QDir{QStringLiteral("/proc")}.entryList(QDir::Dirs)) {
        bool number = false;
        const int id = entry.toInt(&number);
        // The command line of a process that has just ended is empty.
        if (number && content("/proc/" + entry.toStdString() + "/cmdline").starts_with(wanted))
            found.push_back(id);
    }
    return found;
}

bool Program::hasName() {
    return QDBusConnection::sessionBus().interface()->isServiceRegistered(
        QStringLiteral("dev.vostrel.quillon"));
}

void Copier::copy(const std::string& format, const QByteArray& content) {
    clear();
    process_ = std::make_unique<QProcess>();
    process_->setStandardOutputFile(QProcess::nullDevice());
    process_->setStandardErrorFile(QProcess::nullDevice());
    // Both stay in the foreground.
    const bool wayland = qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    const QString tool = QLatin1String{wayland ? "wl-copy" : "xclip"};
    process_->start(
        tool,
        words((wayland ? "--foreground --type " : "-quiet -selection clipboard -t ") + format));
    process_->write(content);
    while (process_->bytesToWrite() > 0 && process_->waitForBytesWritten()) {
    }
    process_->closeWriteChannel();
    const auto offered = [&] {
        QProcess asking;
        wayland ? asking.start(QStringLiteral("wl-paste"), words("--list-types"))
                : asking.start(tool, words("-o -selection clipboard -t TARGETS"));
        // While nothing is copied KWin does not say so, and who asks waits.
        if (!asking.waitForFinished(500)) asking.kill();
        asking.waitForFinished();
        return asking.readAllStandardOutput().split('\n').contains(format.c_str());
    };
    EXPECT_TRUE(waitUntil(offered)) << tool.toStdString() << " does not offer " << format;
}

void Copier::copyFiles(const std::vector<std::string>& uris) {
    QByteArray list;
    for (const std::string& uri : uris)
        list += QByteArray::fromStdString(uri) + "\r\n";
    copy("text/uri-list", list);
}

void Copier::clear() {
    if (!process_) return;
    process_->kill();
    process_->waitForFinished();
    process_.reset();
}

} // namespace quillon::test
