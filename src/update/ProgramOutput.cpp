#include "update/ProgramOutput.h"

#include "platform/linux/files/Descriptor.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>

namespace quillon {

namespace {

using Moment = std::chrono::steady_clock::time_point;

constexpr std::size_t maximumOutput = 4096; // bytes

/// Waits until there is something to read; false if the time is over.
bool awaitReadable(const Descriptor& file, Moment deadline) {
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        pollfd wanted{.fd = file.number(), .events = POLLIN, .revents = 0};
        const int ready = ::poll(&wanted, 1, static_cast<int>(std::max<long>(left.count(), 0)));
        if (ready >= 0 || errno != EINTR) return ready > 0;
    }
}

/// Starts the program as leader of its own process group; 0 if it could not be started.
pid_t start(const std::filesystem::path& program, const std::string& argument, int output) {
    posix_spawn_file_actions_t files;
    posix_spawnattr_t attributes;
    posix_spawn_file_actions_init(&files);
    posix_spawnattr_init(&attributes);
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&files, output, STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    // The child must not inherit this thread's blocked signals or the program's handling of
    // signals.
    sigset_t none;
    sigset_t all;
    sigemptyset(&none);
    sigfillset(&all);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setsigdefault(&attributes, &all);
    posix_spawnattr_setpgroup(&attributes, 0);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK |
                                              POSIX_SPAWN_SETSIGDEF);
    std::string name = program.native();
    std::string text = argument;
    const std::array<char*, 3> arguments{name.data(), text.data(), nullptr};
    pid_t process = 0;
    const int error =
        ::posix_spawn(&process, name.c_str(), &files, &attributes, arguments.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&files);
    return error == 0 ? process : 0;
}

/// Everything that comes until the other end is closed; none if it is too much or the time is over.
std::optional<std::string> readAll(const Descriptor& file, Moment deadline) {
    std::string output;
    std::array<char, maximumOutput> bytes;
    while (awaitReadable(file, deadline)) {
        const ssize_t count = ::read(file.number(), bytes.data(), bytes.size());
        if (count == 0) return output;
        if (count < 0 || output.size() + static_cast<std::size_t>(count) > maximumOutput) break;
        output.append(bytes.data(), static_cast<std::size_t>(count));
    }
    return std::nullopt;
}

} // namespace

std::optional<std::string> programOutput(const std::filesystem::path& program,
                                         const std::string& argument,
                                         std::chrono::milliseconds timeout) {
    const Moment deadline = std::chrono::steady_clock::now() + timeout;
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) return std::nullopt;
    const Descriptor reading{ends[0]};
    Descriptor writing{ends[1]};
    const pid_t process = start(program, argument, writing.number());
    writing.close();
    if (process == 0) return std::nullopt;

    auto output = readAll(reading, deadline);
    // The C library of Debian 12 does not declare pidfd_open for C++.
    const Descriptor handle{static_cast<int>(::syscall(SYS_pidfd_open, process, 0))};
    const bool ended = output && awaitReadable(handle, deadline);
    // The program's children must end too.
    ::kill(-process, SIGKILL);
    int status = 0;
    while (::waitpid(process, &status, 0) < 0 && errno == EINTR)
        continue;
    const bool succeeded = ended && WIFEXITED(status) && WEXITSTATUS(status) == 0;
    return succeeded ? output : std::nullopt;
}

} // namespace quillon
