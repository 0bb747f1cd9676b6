#include "cli/Terminal.h"

#include "base/Translate.h"
#include "base/Utf8.h"

#include <QLocale>

#include <unicode/uchar.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <iostream>

#include <termios.h>
#include <unistd.h>

namespace quillon::Terminal {

namespace {

constexpr std::string_view clearLine = "\r\x1b[K";

bool isControl(UChar32 codePoint) {
    return codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0);
}

/// Hides what is typed for as long as it lives. A signal that ends the program switches the echo on
/// again, too.
class EchoOff {
public:
    EchoOff() {
        if (tcgetattr(STDIN_FILENO, &before) != 0) return;
        termios quiet = before;
        quiet.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        for (const int number : endings)
            std::signal(number, giveBackAndEnd);
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &quiet);
        on_ = true;
    }
    ~EchoOff() {
        if (!on_) return;
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &before);
        for (const int number : endings)
            std::signal(number, SIG_DFL);
    }
    EchoOff(const EchoOff&) = delete;
    EchoOff& operator=(const EchoOff&) = delete;

private:
    static constexpr std::array endings{SIGHUP, SIGINT, SIGQUIT, SIGTERM};

    static void giveBackAndEnd(int number) {
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &before);
        std::signal(number, SIG_DFL);
        std::raise(number);
    }

    /// Static for the signal handler.
    static inline termios before{};
    bool on_ = false;
};

std::string megabytes(qint64 bytes) {
    return QLocale{}.toString(static_cast<double>(bytes) / 1e6, 'f', 1).toStdString();
}

} // namespace

std::string harmless(std::string_view text) {
    std::string safe;
    for (std::size_t offset = 0; offset < text.size();) {
        const std::size_t begin = offset;
        const UChar32 codePoint = nextCodePoint(text, offset);
        const bool keep = codePoint == '\t' || !isControl(codePoint);
        safe += keep ? text.substr(begin, offset - begin) : std::string_view{"\uFFFD"};
    }
    return safe;
}

std::size_t cells(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t offset = 0; offset < text.size();) {
        const int width =
            u_getIntPropertyValue(nextCodePoint(text, offset), UCHAR_EAST_ASIAN_WIDTH);
        count += width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : 1;
    }
    return count;
}

void print(std::string_view line) {
    std::cout << harmless(line) << std::endl;
}

void printError(std::string_view line) {
    std::cerr << harmless(line) << std::endl;
}

void printText(std::string_view text) {
    std::cout << text << std::flush;
}

void printErrorText(std::string_view text) {
    std::cerr << text << std::flush;
}

int settled(int exitCode) {
    if (std::cout.flush()) return exitCode;
    printError(translate("Terminal", "The output could not be written."));
    return EXIT_FAILURE;
}

void exitNow(int exitCode) {
    std::cout.flush();
    std::_Exit(exitCode);
}

std::optional<std::string> readSecret(std::string_view prompt) {
    std::optional<EchoOff> echoOff;
    const bool terminal = isatty(STDIN_FILENO) != 0;
    if (terminal) {
        // This drops what was typed before the prompt, so it comes first.
        echoOff.emplace();
        std::cerr << prompt << std::flush;
    }
    std::string line;
    const bool read = static_cast<bool>(std::getline(std::cin, line));
    if (terminal) std::cerr << std::endl;
    return read ? std::optional{line} : std::nullopt;
}

Progress::Progress(std::string_view what) : what_{what}, terminal_{isatty(STDERR_FILENO) != 0} {}

void Progress::update(qint64 done, qint64 total) {
    done_ = done;
    total_ = total;
    if (state_ == State::shown) draw();
}

void Progress::show() {
    if (!terminal_ || state_ != State::waiting) return;
    state_ = State::shown;
    draw();
}

void Progress::end() {
    if (state_ == State::shown) std::cerr << clearLine << std::flush;
    state_ = State::ended;
}

void Progress::draw() const {
    std::cerr << clearLine
              << filled(translate("Terminal", "%1 %2 of %3 MB", "what is done, and how far it is"),
                        {what_, megabytes(done_), megabytes(total_)})
              << std::flush;
}

} // namespace quillon::Terminal
