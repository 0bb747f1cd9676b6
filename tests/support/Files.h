// What tests do with files, beside what std::filesystem offers.
#pragma once

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

#include <sys/stat.h>

namespace quillon::test {

namespace fs = std::filesystem;

/// All bytes of the file, or those before it cannot be read any further: that of a process that has
/// just ended can be opened all the same.
inline std::string content(const fs::path& file) {
    std::ostringstream bytes;
    bytes << std::ifstream{file, std::ios::binary}.rdbuf();
    return bytes.str();
}

/// Makes a file of these bytes, in the place of what was there.
inline void write(const fs::path& file, const std::string& bytes = "x") {
    std::ofstream{file, std::ios::binary} << bytes;
}

/// What may be done with the file, links followed.
inline fs::perms modeOf(const fs::path& file) {
    return fs::status(file).permissions();
}

/// Everything at the path by its path below: kind, mode, time, number of names, and content or
/// target.
inline std::map<std::string, std::string> snapshot(const fs::path& root) {
    std::map<std::string, std::string> items;
    const auto note = [&](const fs::path& item) {
        struct stat status {};
        ::lstat(item.c_str(), &status);
        std::ostringstream text;
        text << status.st_mode << ' ' << status.st_mtim.tv_sec << '.' << status.st_mtim.tv_nsec;
        if (S_ISLNK(status.st_mode)) text << " -> " << fs::read_symlink(item);
        if (S_ISREG(status.st_mode)) text << ' ' << status.st_nlink << ' ' << content(item);
        items[item.lexically_relative(root)] = text.str();
    };
    note(root);
    for (const auto& entry : fs::recursive_directory_iterator{root})
        note(entry.path());
    return items;
}

} // namespace quillon::test
