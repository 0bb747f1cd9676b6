#include "platform/linux/pasteboard/Bell.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <system_error>
#include <vector>

namespace quillon {

namespace {

/// The time left in the form that poll(2) takes: -1 without a deadline. Rounds up, so that a sleep
/// never ends just before its deadline.
int millisecondsUntil(std::optional<Bell::Time> deadline) {
    if (!deadline) return -1;
    const auto left = *deadline - std::chrono::steady_clock::now();
    const auto rounded = std::chrono::ceil<std::chrono::milliseconds>(left).count();
    return static_cast<int>(std::clamp<std::int64_t>(rounded, 0, 60'000));
}

} // namespace

Bell::Bell() : rung_{eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)} {
    if (rung_ < 0) throw std::system_error{errno, std::generic_category()};
}

Bell::~Bell() {
    close(rung_);
}

void Bell::ring() const {
    eventfd_write(rung_, 1);
}

void Bell::sleep(std::initializer_list<int> descriptors, std::optional<Time> deadline) const {
    std::vector<pollfd> sources{{rung_, POLLIN, 0}};
    for (const int descriptor : descriptors)
        sources.push_back({descriptor, POLLIN, 0});
    poll(sources.data(), sources.size(), millisecondsUntil(deadline));
    eventfd_t rung = 0;
    eventfd_read(rung_, &rung);
}

} // namespace quillon
