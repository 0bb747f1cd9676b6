#pragma once

#include <filesystem>

namespace quillon {

/// Where this user's files go. All paths are absolute.
struct Folders {
    std::filesystem::path home;
    std::filesystem::path data;
    std::filesystem::path cache;
    std::filesystem::path state;
    std::filesystem::path config;
    /// The applications of all users; a parameter only so that tests need not be root.
    std::filesystem::path applications = "/Applications";
};

} // namespace quillon
