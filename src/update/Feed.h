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
    /// The version for comparing: the bundle's "CFBundleVersion".
    std::string version{};
    /// The version that the user sees: the bundle's "CFBundleShortVersionString".
    std::string shortVersion{};
    /// Plain text or HTML from outside. A view of it must not load anything that it names.
    std::string notes{};
    /// The least SystemInfo::version that is required; empty if any will do.
    std::string minimumSystemVersion{};
    /// The archive's address; isAllowedUrl holds.
    std::string url{};
    /// The archive's length in bytes, from 1 to maximumArchiveSize.
    qint64 length = 0;
    /// The signature of all the archive's bytes.
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
/// with quillon bound to "urn:dev.vostrel.quillon:update". Without a short version, the version
/// stands for it. Incomplete and wrong items are left out. None if the XML is broken, is not RSS,
/// has a document type (and so may declare entities), is nested too deeply, or has too many items.
[[nodiscard]] std::optional<std::vector<FeedItem>> parseFeed(const QByteArray& xml);

/// The newest item that is newer than `currentVersion` and runs on `systemVersion`. Unless
/// `skippedVersion` is empty, versions up to it are passed over. Null if there is none.
[[nodiscard]] const FeedItem* newestUpdate(const std::vector<FeedItem>& items,
                                           std::string_view currentVersion,
                                           std::string_view systemVersion,
                                           std::string_view skippedVersion);

/// Whether feeds and archives may come from this address: https, or http from this machine itself
/// (isThisMachine). Addresses with a user name or a password are refused.
[[nodiscard]] bool isAllowedUrl(std::string_view url);

} // namespace quillon
