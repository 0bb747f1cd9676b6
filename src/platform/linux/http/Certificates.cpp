#include "platform/linux/http/Certificates.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cctype>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <system_error>

namespace quillon {

namespace {

/// As the distributions' own packages of certificates lay them.
constexpr std::array bundles{
    "etc/ssl/certs/ca-certificates.crt",                // Debian, Arch, Gentoo, Void
    "etc/pki/ca-trust/extracted/pem/tls-ca-bundle.pem", // Fedora and its relatives
    "etc/pki/tls/certs/ca-bundle.crt",                  // the same, older
    "etc/ssl/ca-bundle.pem",                            // openSUSE
    "etc/ssl/cert.pem",                                 // Alpine
    "etc/ssl/certs/ca-bundle.crt",                      // NixOS
};

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

std::filesystem::path systemBundle(const std::filesystem::path& usual,
                                   const std::filesystem::path& root) {
    const auto isThere = [](const std::filesystem::path& file) {
        std::error_code error;
        return std::filesystem::is_regular_file(file, error);
    };
    if (isThere(usual)) return usual;
    const auto found =
        std::ranges::find_if(bundles, [&](const char* file) { return isThere(root / file); });
    return found == bundles.end() ? usual : root / *found;
}

} // namespace quillon
