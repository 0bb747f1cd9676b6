#include "platform/Bundle.h"

#include <algorithm>

namespace quillon {

namespace {

/// An identifier is a reverse domain name in ASCII.
bool belongsInIdentifier(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.' ||
           c == '-';
}

bool isUnmistakable(const std::string& identifier) {
    return std::ranges::all_of(identifier, belongsInIdentifier) &&
           identifier.find('.') != std::string::npos &&
           identifier.find("..") == std::string::npos && !identifier.starts_with('.') &&
           !identifier.ends_with('.');
}

} // namespace

std::optional<std::string> Bundle::text(std::string_view key) const {
    const auto found = info.find(key);
    return found == info.end() ? std::nullopt : std::optional{found->second};
}

std::string Bundle::folderName() const {
    std::string named = identifier();
    return isUnmistakable(named) ? named : applicationIdentifier;
}

} // namespace quillon
