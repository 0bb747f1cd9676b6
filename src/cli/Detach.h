#pragma once

#include <functional>

namespace quillon {

/// Lets a command give its caller the terminal back while its process stays on, to keep a banner on
/// screen.
class Detach {
public:
    /// Runs `work` in a child process. Returns its exit code as soon as the child has called
    /// release() or ended; a child that is killed gives 128 and the signal's number. Ends the child
    /// when this process is killed before. To be called while the process has one thread.
    static int run(const std::function<int(Detach&)>& work);

    /// In the child: the work is done with this exit code; the caller may go on. Gives up the
    /// standard streams.
    void release(int exitCode);

private:
    explicit Detach(int pipe) : pipe_{pipe} {}

    int pipe_;
};

} // namespace quillon
