#pragma once

#include <QByteArray>
#include <QProcess>
#include <QProcessEnvironment>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace quillon::test {

/// What a finished run of the program left.
struct Finished {
    int code = -1; ///< 128 and the signal's number when one ended it
    std::string out;
    std::string err;
    std::chrono::milliseconds took{};
    bool echoes = false; ///< whether the terminal shows what is typed, now that the run is over
};

/// Arguments for a process, and those that a line holds, between single blanks.
QStringList toList(const std::vector<std::string>& arguments);
QStringList words(const std::string& line);

/// The program's command line, in an environment of the test's choosing.
class Program {
public:
    /// The surroundings of the test, with a data folder of its own and `botApi` as the Bot API. The
    /// executable is a link in the data folder, so that nobody takes another desktop's processes
    /// for this one's.
    Program(const std::string& botApi, const std::filesystem::path& data);

    /// Runs to the end, with `input` on standard input, which is at its end where that is empty.
    [[nodiscard]] Finished run(const std::vector<std::string>& arguments,
                               const std::string& input = {}) const;

    /// Starts without waiting; its standard input is at its end.
    [[nodiscard]] std::unique_ptr<QProcess> start(const std::vector<std::string>& arguments) const;

    /// Waits for a started run to end.
    [[nodiscard]] static Finished finish(QProcess& process);

    /// Runs to the end on a terminal; `typed` is typed as soon as the program has asked for
    /// something. Whatever the terminal showed is in `out`.
    [[nodiscard]] Finished runOnTerminal(const std::vector<std::string>& arguments,
                                         const std::string& typed = {}) const;

    /// The processes that were started as the executable, and their children, by id.
    [[nodiscard]] std::vector<int> processes() const;

    /// Whether a program of the session takes commands.
    [[nodiscard]] static bool hasName();

    QProcessEnvironment environment;
    std::filesystem::path executable;
};

/// Puts content on the desktop's clipboard, and takes it away again.
class Copier {
public:
    ~Copier() { clear(); }

    /// Returns once the clipboard offers it.
    void copy(const std::string& format, const QByteArray& content);
    void copyText(const std::string& text) { copy("UTF8_STRING", QByteArray::fromStdString(text)); }
    /// URIs as a file manager offers them.
    void copyFiles(const std::vector<std::string>& uris);
    void clear();
    /// Who copied last does not answer any more.
    void hang() const { ::kill(static_cast<pid_t>(process_->processId()), SIGSTOP); }

private:
    std::unique_ptr<QProcess> process_;
};

} // namespace quillon::test
