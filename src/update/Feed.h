#pragma once

#include "update/Signature.h"

#include <QByteArray>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// One version that the update feed offers.
struct FeedItem {
    /// What versions are compared by: the bundle's "CFBundleVersion".
    std::string version{};
    /// What the user knows it as: the bundle's "CFBundleShortVersionString".
    std::string shortVersion{};
    /// Plain text or HTML from outside: whoever shows it loads nothing that it names.
    std::string notes{};
    /// The least SystemInfo::version; empty when any will do.
    std::string minimumSystemVersion{};
    /// The archive; allowed as isAllowedUrl has it.
    std::string url{};
    /// Of the archive, in bytes; from 1 to maximumArchiveSize.
    qint64 length = 0;
    /// Of all the archive's bytes.
    Signature signature{};

    bool operator==(const FeedItem&) const = default;
};

/// The largest archive that is fetched, in bytes.
inline constexpr qint64 maximumArchiveSize = 500'000'000;

/// A feed with more items than this is refused.
inline constexpr std::size_t maximumFeedItems = 10'000;

/// The items of an RSS 2.0 feed, in its order:
///     <item><quillon:version/><quillon:shortVersion/><quillon:minimumSystemVersion/>
///     <description/><enclosure url="" length="" type="" quillon:edSignature="base64"/></item>
/// with quillon bound to "urn:dev.vostrel.quillon:update". Without a short version the version
/// stands for it. An item that misses something or has it wrong is left out. None when the XML is
/// broken, no RSS, has a document type (and so entities of its own), or is too deep or too long.
[[nodiscard]] std::optional<std::vector<FeedItem>> parseFeed(const QByteArray& xml);

/// The newest item that is newer than `currentVersion` and runs on `systemVersion`. Those up to
/// `skippedVersion` are passed over, unless that is empty. Null when there is none.
[[nodiscard]] const FeedItem* newestUpdate(const std::vector<FeedItem>& items,
                                           std::string_view currentVersion,
                                           std::string_view systemVersion,
                                           std::string_view skippedVersion);

/// Whether feeds and archives may come from this address: https, or http from this machine itself
/// (isThisMachine). Never with a user name or a password.
[[nodiscard]] bool isAllowedUrl(std::string_view url);

} // namespace quillon
