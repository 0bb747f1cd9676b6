#pragma once

#include <cerrno>
#include <string>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace quillon {

/// Repeats a system call for as long as a signal interrupts it.
template <typename Call>
auto uninterrupted(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

/// An open file, closed with its owner.
class Descriptor {
public:
    explicit Descriptor(int number) : number_{number} {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { close(); }

    [[nodiscard]] int number() const { return number_; }
    [[nodiscard]] bool isOpen() const { return number_ >= 0; }

    /// False when the system could not write what it had taken. Linux closes even when interrupted.
    bool close() {
        const int number = std::exchange(number_, -1);
        return number < 0 || ::close(number) == 0 || errno == EINTR;
    }

private:
    int number_;
};

/// A name within an open folder. Neither is owned.
struct Place {
    int folder = AT_FDCWD;
    const char* name = nullptr;
};

/// Opens what is at the place itself: never through a symbolic link, without waiting for the other
/// end of a pipe. The number is negative when it fails.
[[nodiscard]] inline int openItself(Place place, int flags) {
    constexpr int always = O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    return uninterrupted([&] { return ::openat(place.folder, place.name, flags | always); });
}

/// The names in the open folder, without "." and "..", in no order.
struct Listing {
    std::vector<std::string> names;
    /// Whether these are all.
    bool complete = false;
};
[[nodiscard]] Listing listing(int folder);

} // namespace quillon
