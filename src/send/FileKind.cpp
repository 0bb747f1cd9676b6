#include "send/FileKind.h"

#include "base/Text.h"

#include <algorithm>

namespace quillon {

TopicKind fileKind(const std::filesystem::path& path) {
    const std::string ending = lowercasedAscii(path.extension().native());
    const auto kind = std::ranges::find_if(allValues<TopicKind>, [&](TopicKind each) {
        return std::ranges::count(traits(each).endings, ending) > 0;
    });
    return kind == allValues<TopicKind>.end() ? TopicKind::files : *kind;
}

std::filesystem::path lastComponent(const std::filesystem::path& path) {
    return path.has_filename() ? path.filename() : path;
}

} // namespace quillon
