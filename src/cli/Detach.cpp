#include "cli/Detach.h"

#include "cli/RemoteProgram.h"
#include "cli/Terminal.h"
#include "platform/linux/Application.h"

#include <QCoreApplication>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <iostream>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon {

namespace {

/// Reads the code that the child sends; false when the child ended without sending one.
bool readExitCode(int pipe, int& exitCode) {
    unsigned char byte = 0;
    ssize_t count = 0;
    do {
        count = read(pipe, &byte, 1);
    } while (count < 0 && errno == EINTR);
    exitCode = byte;
    return count == 1;
}

int waitFor(pid_t child) {
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    if (WIFEXITED(status)) return WEXITSTATUS(status);
    // Something has killed it, such as the system for want of memory.
    const auto speaker = makeApplication<QCoreApplication>();
    Terminal::printError(RemoteProgram::endedEarlyMessage());
    return EXIT_FAILURE;
}

} // namespace

int Detach::run(const std::function<int(Detach&)>& work) {
    int ends[2] = {-1, -1};
    const pid_t parent = getpid();
    if (pipe2(ends, O_CLOEXEC) != 0) return EXIT_FAILURE;
    const pid_t child = fork();
    if (child < 0) return EXIT_FAILURE;
    if (child == 0) {
        close(ends[0]);
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() != parent) std::_Exit(EXIT_FAILURE);
        Detach detach{ends[1]};
        Terminal::exitNow(work(detach));
    }
    close(ends[1]);
    int exitCode = 0;
    const bool released = readExitCode(ends[0], exitCode);
    close(ends[0]);
    return released ? exitCode : waitFor(child);
}

void Detach::release(int exitCode) {
    std::cout.flush();
    prctl(PR_SET_PDEATHSIG, 0);
    setsid();
    const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        dup2(nothing, stream);
    }
    if (nothing > STDERR_FILENO) close(nothing);
    const auto byte = static_cast<unsigned char>(exitCode);
    while (write(pipe_, &byte, 1) < 0 && errno == EINTR) {
    }
    close(pipe_);
}

} // namespace quillon
