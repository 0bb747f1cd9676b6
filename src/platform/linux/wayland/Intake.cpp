#include "platform/linux/wayland/Intake.h"

#include <fcntl.h>

#include <algorithm>
#include <array>

namespace quillon {

namespace {

/// What the pipe holds at most, in bytes, and so what one read gives: the most that the kernel lets
/// a user have (/proc/sys/fs/pipe-max-size). A smaller pipe only takes more readings.
constexpr int pipeSize = 1 << 20;

} // namespace

Descriptor Intake::open() {
    std::array<int, 2> ends{-1, -1};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) return Descriptor{};
    end_ = Descriptor{ends[0]};
    // Owners count on an end that blocks, so only the other one does not.
    fcntl(ends[0], F_SETFL, O_NONBLOCK);
    fcntl(ends[0], F_SETPIPE_SZ, pipeSize);
    return Descriptor{ends[1]};
}

Intake::State Intake::take() {
    if (bytes_.size() - used_ < pipeSize) bytes_.resize(std::max(2 * used_, used_ + pipeSize));
    const ssize_t taken = uninterrupted(
        [&] { return ::read(end_.number(), bytes_.data() + used_, std::size_t{pipeSize}); });
    if (taken == 0) return State::ended;
    if (taken < 0) return errno == EAGAIN ? State::waiting : State::failed;
    used_ += taken;
    return used_ <= limit_ ? State::grew : State::failed;
}

QByteArray Intake::bytes() {
    bytes_.resize(used_);
    return bytes_;
}

} // namespace quillon
