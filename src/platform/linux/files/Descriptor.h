#pragma once

#include <cerrno>
#include <filesystem>
#include <string_view>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

// Files and folders that the program makes are accessible to their owner alone.
inline constexpr mode_t ownersFile = S_IRUSR | S_IWUSR; // 0600
inline constexpr mode_t ownersFolder = S_IRWXU;         // 0700

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
    explicit Descriptor(int number = -1) : number_{number} {}
    Descriptor(Descriptor&& other) noexcept : number_{std::exchange(other.number_, -1)} {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
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

/// Whether the path still names the file or folder that is open; a link there never does.
[[nodiscard]] bool isStillAt(const std::filesystem::path& path, int file);

/// Writes all of the bytes; if false, errno tells why.
[[nodiscard]] bool writeAll(int file, std::string_view bytes);

} // namespace quillon
