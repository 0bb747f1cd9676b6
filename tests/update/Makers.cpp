#include "update/Makers.h"

#include "support/Files.h"
#include "update/Archive.h"
#include "update/ProgramOutput.h"
#include "update/Utf8Locale.h"

#include <archive.h>
#include <gtest/gtest.h>
#include <sodium.h>

#include <algorithm>

namespace quillon::test {

namespace {

la_ssize_t append(archive* /*writer*/, void* target, const void* bytes, std::size_t size) {
    static_cast<std::string*>(target)->append(static_cast<const char*>(bytes), size);
    return static_cast<la_ssize_t>(size);
}

template <std::size_t Size>
std::string base64(const std::array<unsigned char, Size>& bytes) {
    return QByteArray{reinterpret_cast<const char*>(bytes.data()), Size}.toBase64().toStdString();
}

void writeHeader(archive* writer, const Entry& each) {
    archive_entry* entry = archive_entry_new();
    archive_entry_set_pathname(entry, each.path.c_str());
    archive_entry_set_perm(entry, each.mode);
    if (each.type != 0) archive_entry_set_filetype(entry, each.type);
    const auto size = static_cast<la_int64_t>(std::max(each.size, each.content.size()));
    if (each.type == AE_IFREG) archive_entry_set_size(entry, size);
    if (each.type == AE_IFLNK) archive_entry_set_symlink(entry, each.link.c_str());
    if (each.type == 0) archive_entry_set_hardlink(entry, each.link.c_str());
    archive_entry_set_mtime(entry, 1'600'000'000, 0);
    EXPECT_EQ(archive_write_header(writer, entry), ARCHIVE_OK) << archive_error_string(writer);
    archive_entry_free(entry);
}

} // namespace

std::string archiveOf(const std::vector<Entry>& entries) {
    std::string bytes;
    archive* writer = archive_write_new();
    const Utf8Locale names;
    archive_write_set_format_pax_restricted(writer);
    archive_write_add_filter_zstd(writer);
    archive_write_set_bytes_per_block(writer, 0); // compressed archives are not filled up
    EXPECT_EQ(archive_write_open(writer, &bytes, nullptr, append, nullptr), ARCHIVE_OK);
    for (const Entry& each : entries) {
        writeHeader(writer, each);
        archive_write_data(writer, each.content.data(), each.content.size());
    }
    archive_write_free(writer);
    return bytes;
}

std::vector<Entry> application(const std::string& version, const std::string& identifier) {
    const std::pair<const char*, std::string> values[] = {
        {"CFBundleIdentifier", identifier},
        {"CFBundleVersion", version},
        {"CFBundleShortVersionString", version},
    };
    std::string list = R"(<?xml version="1.0"?><plist version="1.0"><dict>)";
    for (const auto& [key, value] : values)
        list += std::string{"<key>"} + key + "</key><string>" + value + "</string>";
    list += "</dict></plist>";
    return {
        {.path = "Quillon.app/", .mode = 0755, .type = AE_IFDIR},
        {.path = "Quillon.app/Contents/", .mode = 0755, .type = AE_IFDIR},
        {.path = "Quillon.app/Contents/Linux/", .mode = 0755, .type = AE_IFDIR},
        {.path = "Quillon.app/Contents/Resources/", .mode = 0755, .type = AE_IFDIR},
        {.path = "Quillon.app/Contents/Info.plist", .content = list},
        {.path = "Quillon.app/Contents/Linux/quillon",
         .content = "#!/bin/sh\n[ \"$1\" = --version ] && echo quillon " + version + "\n",
         .mode = 0755},
        {.path = "Quillon.app/Contents/Resources/über.svg", .content = std::string(50'000, 'x')},
        link("Quillon.app/Contents/Resources/icon", "../Resources/über.svg")};
}

std::string feedXml(const std::string& items) {
    return "<?xml version='1.0' encoding='utf-8'?><rss version='2.0' "
           "xmlns:quillon='urn:dev.vostrel.quillon:update'><channel><title>Quillon</title>" +
           items + "</channel></rss>";
}

std::string itemXml(const FeedItem& item, const std::string& more) {
    return "<item><quillon:version>" + item.version + "</quillon:version><description>" +
           item.notes + "</description>" + more + "<enclosure url='" + item.url + "' length='" +
           std::to_string(item.length) + "' type='application/zstd' quillon:edSignature='" +
           base64(item.signature) + "'/></item>";
}

Maker::Maker() {
    EXPECT_GE(sodium_init(), 0);
    crypto_sign_keypair(public_.data(), secret_.data());
}

std::string Maker::publicKey() const {
    return base64(public_);
}

Signature Maker::sign(const std::string& bytes) const {
    Signature signature{};
    crypto_sign_detached(signature.data(), nullptr,
                         reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size(),
                         secret_.data());
    return signature;
}

void place(const std::vector<Entry>& entries, const fs::path& folder) {
    fs::create_directories(folder);
    EXPECT_EQ(unpack(archiveOf(entries), folder), std::nullopt);
}

std::vector<std::string> namesIn(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& each : fs::directory_iterator{folder})
        names.push_back(each.path().filename());
    return names;
}

std::string versionOf(const fs::path& bundle) {
    const auto output =
        programOutput(bundle / "Contents/Linux/quillon", "--version", std::chrono::seconds{10});
    return output && output->starts_with("quillon ") ? output->substr(8, output->size() - 9) : "";
}

} // namespace quillon::test
