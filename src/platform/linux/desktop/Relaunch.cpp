#include "platform/linux/desktop/Relaunch.h"

#include "platform/linux/desktop/LinuxBundle.h"

#include <csignal>
#include <string>

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

namespace quillon {

namespace {

/// The shell checks this often whether the process is still there. It uses its built-in `kill`,
/// because not every machine has the program.
constexpr const char* whileRunning = "while kill -0 ";
constexpr const char* thenOpen = " 2>/dev/null; do /bin/sleep 0.2; done; exec \"$0/";

/// The posix_spawn attributes and file actions that make a child independent of its parent.
struct Independence {
    posix_spawn_file_actions_t files{};
    posix_spawnattr_t attributes{};

    Independence() {
        posix_spawn_file_actions_init(&files);
        for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
            posix_spawn_file_actions_addopen(&files, stream, "/dev/null", O_RDWR, 0);
        posix_spawn_file_actions_addclosefrom_np(&files, STDERR_FILENO + 1);
        posix_spawn_file_actions_addchdir_np(&files, "/");

        sigset_t signals;
        posix_spawnattr_init(&attributes);
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&attributes, &signals);
        sigfillset(&signals);
        posix_spawnattr_setsigdefault(&attributes, &signals);
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK |
                                                  POSIX_SPAWN_SETSIGDEF);
    }
    Independence(const Independence&) = delete;
    Independence& operator=(const Independence&) = delete;
    ~Independence() {
        posix_spawn_file_actions_destroy(&files);
        posix_spawnattr_destroy(&attributes);
    }
};

} // namespace

void openAfterExit(const std::filesystem::path& application) {
    std::string shell = "/bin/sh";
    std::string option = "-c";
    std::string script = whileRunning + std::to_string(::getpid()) + thenOpen + bundleProgram + '"';
    std::string destination = application.native();
    char* arguments[]{shell.data(), option.data(), script.data(), destination.data(), nullptr};
    const Independence independence;
    pid_t child = 0;
    posix_spawn(&child, shell.c_str(), &independence.files, &independence.attributes, arguments,
                environ);
}

} // namespace quillon
