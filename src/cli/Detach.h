#pragma once

#include <functional>

namespace quillon {

/// Lets a command give the terminal back to its caller while its process stays, to keep a banner on
/// screen.
class Detach {
public:
    /// Runs `work` in a child process. Returns its exit code as soon as the child has called
    /// release() or ended; for a child that is killed it prints a sentence and gives 1. The child
    /// is killed when this process is killed before that. Call it while the process has one thread.
    static int run(const std::function<int(Detach&)>& work);

    /// Called by the child: its work is done, and the caller may go on with this exit code. The
    /// child gives up its standard streams.
    void release(int exitCode);

private:
    explicit Detach(int pipe) : pipe_{pipe} {}

    int pipe_;
};

} // namespace quillon
