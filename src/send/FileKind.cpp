#include "send/FileKind.h"

#include "base/Text.h"

#include <algorithm>
#include <array>

namespace quillon {

namespace {

constexpr FileKind video{.topic = "videos", .kind = "video", .symbol = "film"};
constexpr FileKind image{.topic = "images", .kind = "image", .symbol = "photo"};
constexpr FileKind plainFile{.topic = "files", .kind = "file", .symbol = "doc"};

struct Row {
    std::string_view extension;
    const FileKind& kind;
};

constexpr std::array rows{
    Row{".mp4", video}, Row{".mov", video},  Row{".m4v", video},  Row{".webm", video},
    Row{".png", image}, Row{".jpg", image},  Row{".jpeg", image}, Row{".webp", image},
    Row{".gif", image}, Row{".heic", image},
};

} // namespace

FileKind fileKind(const std::filesystem::path& path) {
    const std::string extension = lowercasedAscii(path.extension().native());
    const auto row = std::ranges::find(rows, extension, &Row::extension);
    return row == rows.end() ? plainFile : row->kind;
}

std::filesystem::path lastComponent(const std::filesystem::path& path) {
    return path.has_filename() ? path.filename() : path;
}

} // namespace quillon
