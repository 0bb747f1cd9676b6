#include "Fuzz.h"

#include "update/Feed.h"
#include "update/Version.h"

#include <string>

// Whatever comes as a feed, only usable items are taken from it, and what is offered is newer. The
// order of versions is the same from both sides.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillon;
    const std::string_view text = fuzzText(data, size);
    (void)isAllowedUrl(text);
    const std::string_view left = text.substr(0, size / 2);
    const std::string_view right = text.substr(size / 2);
    require(compareVersions(left, right) == 0 <=> compareVersions(right, left));
    const auto items = parseFeed(QByteArray(text.data(), static_cast<qsizetype>(text.size())));
    if (!items) return 0;
    for (const FeedItem& item : *items)
        require(isAllowedUrl(item.url) && item.length > 0 && item.length <= maximumArchiveSize);
    const FeedItem* newest = newestUpdate(*items, "1.0", "6.1.0", {});
    if (newest) require(std::is_gt(compareVersions(newest->version, "1.0")));
    return 0;
}
