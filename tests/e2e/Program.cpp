#include "Program.h"

#include "support/Await.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include <pty.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

namespace quillon::test {

namespace {

constexpr int longestRun = 60'000; // ms, on a machine that is busy with other things

QStringList toList(const std::vector<std::string>& arguments) {
    QStringList list;
    for (const std::string& argument : arguments)
        list << QString::fromStdString(argument);
    return list;
}

/// Empty for a process that has just ended.
std::string commandLine(int process) {
    QFile file{QStringLiteral("/proc/%1/cmdline").arg(process)};
    return file.open(QFile::ReadOnly) ? file.readAll().toStdString() : std::string{};
}

/// Becomes the program, in a child process.
[[noreturn]] void become(const std::vector<std::string>& arguments,
                         const QProcessEnvironment& environment) {
    std::vector<std::string> words{QUILLON};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<std::string> settings;
    for (const QString& setting : environment.toStringList())
        settings.push_back(setting.toStdString());
    const auto pointers = [](std::vector<std::string>& texts) {
        std::vector<char*> list(texts.size() + 1, nullptr);
        std::ranges::transform(texts, list.begin(), [](std::string& text) { return text.data(); });
        return list;
    };
    ::execve(QUILLON, pointers(words).data(), pointers(settings).data());
    ::_exit(127);
}

} // namespace

Program::Program(const std::string& botApi, const std::filesystem::path& data)
    : environment{QProcessEnvironment::systemEnvironment()} {
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    environment.insert(QStringLiteral("QUILLON_BOT_API"), QString::fromStdString(botApi));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), QString::fromStdString(data.native()));
    environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
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
    process.start(QString::fromStdString(executable), toList(arguments));
    process.write(input.data(), static_cast<qint64>(input.size()));
    process.closeWriteChannel();
    Finished run = finish(process);
    run.took = std::chrono::milliseconds{timer.elapsed()};
    return run;
}

Finished Program::runOnTerminal(const std::vector<std::string>& arguments,
                                const std::string& typed) const {
    int terminal = -1;
    const pid_t child = ::forkpty(&terminal, nullptr, nullptr, nullptr);
    if (child == 0) become(arguments, environment);
    Finished run;
    std::string left = typed;
    std::array<char, 4096> buffer{};
    // The terminal fails to be read once the last process on it has ended.
    for (ssize_t count = 0; (count = ::read(terminal, buffer.data(), buffer.size())) > 0;) {
        run.out.append(buffer.data(), static_cast<std::size_t>(count));
        if (left.empty()) continue;
        EXPECT_EQ(::write(terminal, left.data(), left.size()), static_cast<ssize_t>(left.size()));
        left.clear();
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    termios settings{};
    run.echoes = ::tcgetattr(terminal, &settings) == 0 && (settings.c_lflag & ECHO) != 0;
    ::close(terminal);
    run.code = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return run;
}

std::vector<int> Program::processes() {
    std::vector<int> found;
    const std::string wanted = std::string{QUILLON} + '\0';
    for (const QString& entry : QDir{QStringLiteral("/proc")}.entryList(QDir::Dirs)) {
        bool number = false;
        const int id = entry.toInt(&number);
        if (number && commandLine(id).starts_with(wanted)) found.push_back(id);
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
    const QString target = QString::fromStdString(format);
    // Quiet means that it stays in the foreground.
    process_->start(QStringLiteral("xclip"),
                    {QStringLiteral("-quiet"), QStringLiteral("-selection"),
                     QStringLiteral("clipboard"), QStringLiteral("-t"), target});
    process_->write(content);
    process_->closeWriteChannel();
    const auto offered = [&] {
        QProcess asking;
        asking.start(QStringLiteral("xclip"), {QStringLiteral("-o"), QStringLiteral("-selection"),
                                               QStringLiteral("clipboard"), QStringLiteral("-t"),
                                               QStringLiteral("TARGETS")});
        asking.waitForFinished();
        return asking.readAllStandardOutput().split('\n').contains(target.toUtf8());
    };
    EXPECT_TRUE(waitUntil(offered)) << "xclip does not offer " << format;
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
