#include "send/ClipboardFormats.h"

#include "base/Bytes.h"
#include "base/Text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <string_view>

namespace quillon::ClipboardFormats {

namespace {

// The tables name the formats in lower case, the best first.

constexpr std::array fileListNames{
    std::string_view{"text/uri-list"}, // RFC 2483
    std::string_view{"x-special/gnome-copied-files"},
    std::string_view{"x-special/mate-copied-files"},
};

constexpr std::string_view latin1Name = "string";

// UTF8_STRING comes first, because some toolkits rewrite line ends for the media types.
constexpr std::array textNames{
    std::string_view{"utf8_string"},
    std::string_view{"text/plain;charset=utf-8"},
    std::string_view{"text/plain; charset=utf-8"},
    std::string_view{"text/plain;charset=utf8"},
    std::string_view{"text/plain"},
    latin1Name,
};

constexpr std::string_view pngName = "image/png";

// After PNG and TIFF, lossless formats come first.
constexpr std::array imageNames{
    pngName,
    std::string_view{"image/tiff"},
    std::string_view{"image/bmp"},
    std::string_view{"image/x-bmp"},
    std::string_view{"image/x-ms-bmp"},
    std::string_view{"image/webp"},
    std::string_view{"image/jpeg"},
    std::string_view{"image/jpg"},
    std::string_view{"image/gif"},
    std::string_view{"image/x-icon"},
    std::string_view{"image/vnd.microsoft.icon"},
};

std::span<const std::string_view> namesOf(Kind kind) {
    switch (kind) {
    case Kind::files:
        return fileListNames;
    case Kind::text:
        return textNames;
    case Kind::image:
        break;
    }
    return imageNames;
}

std::optional<std::string> spelling(std::string_view name,
                                    const std::vector<std::string>& offered) {
    for (const std::string& candidate : offered) {
        if (lowercasedAscii(candidate) == name) return candidate;
    }
    return {};
}

std::string_view withoutTrailingNul(std::string_view bytes) {
    return bytes.substr(0, bytes.find_last_not_of('\0') + 1);
}

std::optional<unsigned> hexDigit(char digit) {
    if (digit >= '0' && digit <= '9') return static_cast<unsigned>(digit - '0');
    const char small = static_cast<char>(digit | 0x20);
    if (small >= 'a' && small <= 'f') return static_cast<unsigned>(small - 'a') + 10;
    return {};
}

/// A "%" without two hexadecimal digits behind it stays as it is, since not every owner encodes it.
std::string percentDecoded(std::string_view text) {
    std::string decoded;
    decoded.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%' && i + 2 < text.size()) {
            const auto high = hexDigit(text[i + 1]);
            const auto low = hexDigit(text[i + 2]);
            if (high && low) {
                decoded += static_cast<char>(*high * 16 + *low);
                i += 2;
                continue;
            }
        }
        decoded += text[i];
    }
    return decoded;
}

/// What follows "file:" and the name of this machine, or none; nothing for other URLs.
std::optional<std::string_view> encodedPath(std::string_view url, std::string_view machine) {
    constexpr std::string_view scheme = "file:";
    if (lowercasedAscii(url.substr(0, scheme.size())) != scheme) return {};
    url.remove_prefix(scheme.size());
    if (!url.starts_with("//")) return url;
    url.remove_prefix(2);
    const std::string host = lowercasedAscii(url.substr(0, url.find('/')));
    const bool local = host.empty() || host == "localhost" || host == lowercasedAscii(machine);
    return local ? std::optional{url.substr(host.size())} : std::nullopt;
}

std::optional<std::filesystem::path> decodedPath(std::string_view url, std::string_view machine) {
    const auto encoded = encodedPath(url, machine);
    if (!encoded || !encoded->starts_with('/')) return {};
    std::string path = percentDecoded(*encoded);
    if (path.find('\0') != std::string::npos) return {};
    while (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
    return std::filesystem::path{std::move(path)};
}

std::vector<std::string_view> lines(std::string_view list) {
    std::vector<std::string_view> found;
    while (!list.empty()) {
        const auto end = std::min(list.find_first_of("\r\n"), list.size());
        if (end > 0) found.push_back(list.substr(0, end));
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return found;
}

std::string utf8FromLatin1(std::string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x80) {
            utf8 += c;
        } else {
            utf8 += static_cast<char>(0xc0 | (byte >> 6));
            utf8 += static_cast<char>(0x80 | (byte & 0x3f));
        }
    }
    return utf8;
}

} // namespace

std::vector<std::string> formatsOf(Kind kind, const std::vector<std::string>& offered) {
    std::vector<std::string> found;
    for (const std::string_view name : namesOf(kind)) {
        if (auto format = spelling(name, offered)) found.push_back(*std::move(format));
    }
    return found;
}

bool isPng(std::string_view format) {
    return lowercasedAscii(format) == pngName;
}

std::vector<std::filesystem::path> decodedPaths(const QByteArray& list, std::string_view machine) {
    // Comments in text/uri-list, and "copy" or "cut" in the desktops' own lists, are no file URLs
    // and are left out as web links are.
    std::vector<std::filesystem::path> paths;
    for (const std::string_view line : lines(withoutTrailingNul(asText(list)))) {
        if (auto path = decodedPath(line, machine)) paths.push_back(std::move(*path));
    }
    return paths;
}

std::string decodedText(const QByteArray& bytes, std::string_view format) {
    const std::string_view text = withoutTrailingNul(asText(bytes));
    return lowercasedAscii(format) == latin1Name ? utf8FromLatin1(text) : validUtf8(text);
}

} // namespace quillon::ClipboardFormats
