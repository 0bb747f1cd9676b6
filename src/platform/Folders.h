#pragma once

#include <filesystem>

namespace quillon {

/// The folders for this user's files. All paths are absolute.
struct Folders {
    std::filesystem::path home;
    std::filesystem::path data;
    std::filesystem::path cache;
    std::filesystem::path state;
    std::filesystem::path config;
    /// The applications of all users. Tests set another folder, so that they need not run as root.
    std::filesystem::path applications = "/Applications";
};

} // namespace quillon
