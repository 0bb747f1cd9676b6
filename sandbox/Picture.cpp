#include "sandbox/Picture.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace quillon::sandbox {

namespace {

using namespace std::string_view_literals;

std::uint32_t byteAt(std::string_view bytes, std::size_t offset) {
    return static_cast<unsigned char>(bytes[offset]);
}

int big(std::string_view bytes, std::size_t offset, std::size_t count) {
    std::uint32_t value = 0;
    for (const char c : bytes.substr(offset, count))
        value = (value << 8u) | static_cast<unsigned char>(c);
    return static_cast<int>(value);
}

int little(std::string_view bytes, std::size_t offset, std::size_t count) {
    const std::string_view number = bytes.substr(offset, count);
    return big(std::string{number.rbegin(), number.rend()}, 0, count);
}

std::optional<PictureSize> checked(int width, int height) {
    if (width <= 0 || height <= 0) return std::nullopt;
    return PictureSize{width, height};
}

// A PNG has a signature, then the chunk IHDR of 13 bytes, then image data.
std::optional<PictureSize> png(std::string_view bytes) {
    if (bytes.size() < 45 || bytes.substr(8, 8) != "\0\0\0\x0DIHDR"sv) return std::nullopt;
    if (bytes.find("IDAT"sv) == std::string_view::npos) return std::nullopt;
    return checked(big(bytes, 16, 4), big(bytes, 20, 4));
}

// Skips the segments before the first frame header (SOF0…SOF15 without DHT, JPG and DAC).
std::optional<PictureSize> jpeg(std::string_view bytes) {
    std::size_t position = 2;
    while (position + 9 < bytes.size()) {
        if (byteAt(bytes, position) != 0xFF) return std::nullopt;
        const auto marker = byteAt(bytes, position + 1);
        if (marker == 0xFF) {
            ++position;
            continue;
        }
        const bool frame =
            marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
        if (frame) return checked(big(bytes, position + 7, 2), big(bytes, position + 5, 2));
        position += 2 + static_cast<std::size_t>(big(bytes, position + 2, 2));
    }
    return std::nullopt;
}

std::optional<PictureSize> gif(std::string_view bytes) {
    if (bytes.size() < 13) return std::nullopt;
    return checked(little(bytes, 6, 2), little(bytes, 8, 2));
}

// A WebP is a RIFF container with a lossy, a lossless or an extended first chunk.
std::optional<PictureSize> webp(std::string_view bytes) {
    if (bytes.size() < 30 || bytes.substr(8, 4) != "WEBP"sv) return std::nullopt;
    const std::string_view chunk = bytes.substr(12, 4);
    if (chunk == "VP8 "sv) {
        if (bytes.substr(23, 3) != "\x9D\x01\x2A"sv) return std::nullopt;
        return checked(little(bytes, 26, 2) & 0x3FFF, little(bytes, 28, 2) & 0x3FFF);
    }
    if (chunk == "VP8L"sv) {
        if (byteAt(bytes, 20) != 0x2F) return std::nullopt;
        const auto bits = static_cast<std::uint32_t>(little(bytes, 21, 4));
        return checked(static_cast<int>(bits & 0x3FFFu) + 1,
                       static_cast<int>((bits >> 14u) & 0x3FFFu) + 1);
    }
    if (chunk == "VP8X"sv) return checked(little(bytes, 24, 3) + 1, little(bytes, 27, 3) + 1);
    return std::nullopt;
}

} // namespace

std::optional<PictureSize> pictureSize(std::string_view bytes) {
    if (bytes.starts_with("\x89PNG\r\n\x1A\n"sv)) return png(bytes);
    if (bytes.starts_with("\xFF\xD8"sv)) return jpeg(bytes);
    if (bytes.starts_with("GIF87a"sv) || bytes.starts_with("GIF89a"sv)) return gif(bytes);
    if (bytes.starts_with("RIFF"sv)) return webp(bytes);
    return std::nullopt;
}

} // namespace quillon::sandbox
