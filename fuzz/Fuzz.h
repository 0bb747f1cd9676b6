#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

/// What libFuzzer feeds, as text.
inline std::string_view fuzzText(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// Ends the run with the input that broke the promise.
inline void require(bool promise) {
    if (!promise) std::abort();
}
