#pragma once

#include <chrono>
#include <initializer_list>
#include <optional>

namespace quillon {

/// Wakes a thread that sleeps until there is something to read.
class Bell {
public:
    using Time = std::chrono::steady_clock::time_point;

    /// Throws std::system_error where the process may open no more files.
    Bell();
    Bell(const Bell&) = delete;
    Bell& operator=(const Bell&) = delete;
    ~Bell();

    /// Ends the present sleep, or else the next one. Thread-safe.
    void ring() const;

    /// Sleeps until one of the descriptors has something to read, ring() or the deadline. Negative
    /// descriptors are ignored.
    void sleep(std::initializer_list<int> descriptors, std::optional<Time> deadline) const;

private:
    int rung_; ///< an eventfd
};

} // namespace quillon
