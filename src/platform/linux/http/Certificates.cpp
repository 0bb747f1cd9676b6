#include "platform/linux/http/Certificates.h"

#include <QFile>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <system_error>

namespace quillon {

namespace {

/// X509_LOOKUP_hash_dir(3): eight hexadecimal digits, a dot, and a number that tells apart subjects
/// of the same hash.
bool isHashed(std::string_view name) {
    constexpr std::size_t digits = 8;
    const auto isHex = [](unsigned char c) { return std::isxdigit(c) != 0; };
    const auto isDigit = [](unsigned char c) { return std::isdigit(c) != 0; };
    return name.size() > digits + 1 && name[digits] == '.' &&
           std::ranges::all_of(name.substr(0, digits), isHex) &&
           std::ranges::all_of(name.substr(digits + 1), isDigit);
}

std::set<std::string> hashedNames(const std::filesystem::path& folder) {
    std::set<std::string> names;
    std::error_code error;
    for (auto entry = std::filesystem::directory_iterator{folder, error};
         !error && entry != std::filesystem::directory_iterator{}; entry.increment(error)) {
        std::string name = entry->path().filename().native();
        if (isHashed(name)) names.insert(std::move(name));
    }
    return names;
}

qsizetype countIn(const std::filesystem::path& bundle) {
    QFile file{QString::fromStdString(bundle.native())};
    return file.open(QIODevice::ReadOnly) ? file.readAll().count("-----BEGIN ") : 0;
}

} // namespace

bool replacesBundle(const std::filesystem::path& folder, const CertificatePlaces& system) {
    const auto systems = hashedNames(system.folder);
    return !systems.empty() && std::ssize(systems) >= countIn(system.bundle) &&
           std::ranges::includes(folder == system.folder ? systems : hashedNames(folder), systems);
}

} // namespace quillon
