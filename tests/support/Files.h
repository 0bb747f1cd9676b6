// What tests do with files, beside what std::filesystem offers.
#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace quillon::test {

/// All bytes of the file, or those before it cannot be read any further: that of a process that has
/// just ended can be opened all the same.
inline std::string content(const std::filesystem::path& file) {
    std::ostringstream bytes;
    bytes << std::ifstream{file, std::ios::binary}.rdbuf();
    return bytes.str();
}

/// Makes a file of these bytes, in the place of what was there.
inline void write(const std::filesystem::path& file, const std::string& bytes = "x") {
    std::ofstream{file, std::ios::binary} << bytes;
}

} // namespace quillon::test
