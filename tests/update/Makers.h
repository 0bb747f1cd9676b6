#pragma once

#include "platform/UpdateFramework.h"
#include "update/Feed.h"

#include <archive_entry.h>

#include <filesystem>
#include <ostream>

namespace quillon {

/// For the messages of failed tests.
inline void PrintTo(const UpdateError& error, std::ostream* out) {
    *out << error.code << ' ' << error.description;
}

} // namespace quillon

namespace quillon::test {

/// One entry of an archive, right or wrong.
struct Entry {
    std::string path;
    std::string content{};
    mode_t mode = 0644;
    mode_t type = AE_IFREG;
    /// Where a symbolic link leads, or a hard link when the type is 0.
    std::string link{};
    /// Of a file that goes on with zeros after its content, in bytes.
    std::size_t size = 0;
};

inline Entry link(const std::string& path, const std::string& target) {
    return {.path = path, .mode = 0777, .type = AE_IFLNK, .link = target};
}
inline Entry hardLink(const std::string& path, const std::string& target) {
    return {.path = path, .type = 0, .link = target};
}

/// A compressed tar archive.
std::string archiveOf(const std::vector<Entry>& entries);

/// An application folder whose program tells its version.
std::vector<Entry> application(const std::string& version,
                               const std::string& identifier = "dev.vostrel.quillon");

/// A feed of these items, and one of them.
std::string feedXml(const std::string& items);
std::string itemXml(const FeedItem& item, const std::string& more = {});

/// Which of these entries is the program.
constexpr std::size_t programEntry = 5;

/// Whoever signs updates.
class Maker {
public:
    Maker();
    [[nodiscard]] std::string publicKey() const;
    [[nodiscard]] Signature sign(const std::string& bytes) const;

private:
    PublicKey public_{};
    std::array<unsigned char, 64> secret_{};
};

/// Writes the entries as they are below `folder`.
void place(const std::vector<Entry>& entries, const std::filesystem::path& folder);

/// The names in a folder.
std::vector<std::string> namesIn(const std::filesystem::path& folder);

/// What the application's program says its version is; empty when it does not run.
std::string versionOf(const std::filesystem::path& bundle);

} // namespace quillon::test
