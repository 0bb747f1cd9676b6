#pragma once

#include <functional>
#include <string>

#include <fcntl.h>
#include <grp.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon::test {

/// The user that owns nothing.
inline constexpr uid_t nobody = 65534;

/// Gives up being root for good. True at once for everybody else.
inline bool becomeNobody() {
    return ::geteuid() != 0 ||
           (::setgroups(0, nullptr) == 0 && ::setgid(nobody) == 0 && ::setuid(nobody) == 0);
}

/// What `question` gives when an ordinary user asks, for root's permissions are never checked. Runs
/// in a process of its own, without this one's threads.
inline bool asNobody(const std::function<bool()>& question) {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(becomeNobody() && question() ? 1 : 0);
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 1;
}

/// A mount for as long as it lives.
class Mount {
public:
    /// A new file system in memory.
    static Mount memory(const std::string& at, const std::string& options = {}) {
        return Mount{at, ::mount("tmpfs", at.c_str(), "tmpfs", 0, options.c_str()) == 0};
    }
    /// What is at the folder, once more and read-only, in its own place.
    static Mount readOnly(const std::string& at) {
        const char* path = at.c_str();
        const bool bound = ::mount(path, path, nullptr, MS_BIND, nullptr) == 0;
        constexpr auto flags = MS_BIND | MS_REMOUNT | MS_RDONLY;
        return Mount{at, bound && ::mount(nullptr, path, nullptr, flags, nullptr) == 0};
    }
    /// A file system that never answers, as when its server is gone. Whoever waits for it gets an
    /// error when the mount ends.
    static Mount hanging(const std::string& at) {
        const int server = ::open("/dev/fuse", O_RDWR | O_CLOEXEC);
        const std::string options =
            "fd=" + std::to_string(server) + ",rootmode=40000,user_id=0,group_id=0";
        return Mount{at, ::mount("nobody", at.c_str(), "fuse", 0, options.c_str()) == 0, server};
    }
    Mount(const Mount&) = delete;
    Mount& operator=(const Mount&) = delete;
    ~Mount() {
        if (server_ >= 0) ::close(server_);
        if (mounted_) ::umount2(at_.c_str(), MNT_DETACH);
    }

    /// False where this user may mount nothing.
    explicit operator bool() const { return mounted_; }

private:
    Mount(std::string at, bool mounted, int server = -1)
        : at_{std::move(at)},
          mounted_{mounted},
          server_{server} {}

    std::string at_;
    bool mounted_;
    int server_;
};

} // namespace quillon::test
