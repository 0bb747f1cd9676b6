#include "update/Archive.h"

#include "update/Errors.h"
#include "update/LibArchive.h"
#include "update/Utf8Locale.h"

#include <sys/stat.h>
#include <sys/statvfs.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <set>
#include <utility>

namespace quillon {

namespace {

using std::filesystem::path;

constexpr mode_t privileges = S_ISUID | S_ISGID;

/// A path of the archive without "." and doubled slashes, or the code of an error if it leads
/// outside.
struct EntryPath {
    path relative;
    int objection = 0;
};

EntryPath entryPath(const char* name) {
    EntryPath result;
    const path given{name ? name : ""};
    if (given.empty()) result.objection = updateArchiveDamaged;
    if (given.is_absolute()) result.objection = updateArchiveAbsolutePath;
    for (const path& part : given) {
        if (part == "..") result.objection = updateArchiveParentPath;
        if (!part.empty() && part != ".") result.relative /= part;
    }
    return result;
}

/// Whether a symbolic link at `at` stays inside. Its parents are real folders, so each ".." at the
/// front leads up by one. After a name, which may itself be a link, ".." may lead anywhere.
bool staysInside(const path& at, const path& target) {
    if (target.empty() || target.is_absolute()) return false;
    auto up = std::distance(at.begin(), at.end()) - 1;
    bool named = false;
    for (const path& part : target) {
        if (part.empty() || part == ".") continue;
        if (part != "..") {
            named = true;
        } else if (named || up-- == 0) {
            return false;
        }
    }
    return true;
}

/// Unpacks one archive into one folder.
class Unpacking {
public:
    Unpacking(path folder, UnpackLimits limits, const std::stop_token& stop)
        : folder_{std::move(folder)},
          limits_{limits},
          stop_{stop} {}

    std::optional<UpdateError> run(std::string_view bytes) {
        const Utf8Locale names;
        if (!open(bytes)) return updateError(updateArchiveDamaged);
        for (;;) {
            archive_entry* entry = nullptr;
            const int result = archive_read_next_header(reader_.get(), &entry);
            if (result == ARCHIVE_EOF) return finish();
            // Warnings concern data that is not used, such as an owner's name.
            if (result < ARCHIVE_WARN) return updateError(updateArchiveDamaged);
            if (auto error = unpack(entry)) return error;
        }
    }

private:
    /// A reader or writer of the library, with the function that frees it.
    using Owned = std::unique_ptr<archive, int (*)(archive*)>;

    bool open(std::string_view bytes) {
        constexpr int flags = ARCHIVE_EXTRACT_PERM | ARCHIVE_EXTRACT_TIME |
                              ARCHIVE_EXTRACT_NO_OVERWRITE | ARCHIVE_EXTRACT_SECURE_SYMLINKS |
                              ARCHIVE_EXTRACT_SECURE_NODOTDOT;
        archive* reader = reader_.get();
        // The library refuses to write through links, even those above the folder.
        std::error_code error;
        folder_ = std::filesystem::canonical(folder_, error);
        return !error && reader && writer_ &&
               archive_write_disk_set_options(writer_.get(), flags) == ARCHIVE_OK &&
               archive_read_support_filter_gzip(reader) == ARCHIVE_OK &&
               archive_read_support_filter_xz(reader) == ARCHIVE_OK &&
               archive_read_support_filter_zstd(reader) == ARCHIVE_OK &&
               archive_read_support_format_tar(reader) == ARCHIVE_OK &&
               archive_read_open_memory(reader, bytes.data(), bytes.size()) == ARCHIVE_OK;
    }

    std::optional<UpdateError> unpack(archive_entry* entry) {
        if (stop_.stop_requested()) return updateError(updateCancelled);
        const auto [relative, objection] = entryPath(name(entry));
        if (objection != 0) return updateError(objection);
        // The archive must not change the folder itself.
        if (relative.empty()) return std::nullopt;
        if (const int reason = objectionTo(entry, relative)) return updateError(reason);
        if (!hasRoom(entry)) return fileError(ENOSPC);
        archive_entry_set_pathname(entry, (folder_ / relative).c_str());
        if (archive_write_header(writer_.get(), entry) < ARCHIVE_WARN) return writeError();
        if (auto error = copyData()) return error;
        if (archive_write_finish_entry(writer_.get()) < ARCHIVE_WARN) return writeError();
        return std::nullopt;
    }

    /// The entry's path as stored, or in UTF-8 if the process's character set cannot express it.
    static const char* name(archive_entry* entry) {
        const char* name = archive_entry_pathname(entry);
        return name ? name : archive_entry_pathname_utf8(entry);
    }

    /// The code of the error for an entry that must not be unpacked; 0 if it may be.
    int objectionTo(archive_entry* entry, const path& relative) {
        if (++entries_ > limits_.entries) return updateArchiveTooLarge;
        if (goesThroughLink(relative)) return updateArchiveLink;
        const mode_t type = archive_entry_filetype(entry);
        if (type != AE_IFDIR && !files_.insert(relative).second) return updateArchiveDamaged;
        const bool isLink = type == AE_IFLNK;
        if (!isLink && (archive_entry_perm(entry) & privileges)) return updateArchivePrivileges;
        if (const char* target = archive_entry_hardlink(entry))
            return redirectHardLink(entry, target);
        if (isLink) return objectionToLink(entry, relative);
        if (type != AE_IFREG && type != AE_IFDIR) return updateArchiveSpecialFile;
        const la_int64_t size = type == AE_IFREG ? archive_entry_size(entry) : 0;
        if (size < 0) return updateArchiveDamaged;
        if (size > limits_.bytes - announced_) return updateArchiveTooLarge;
        announced_ += size;
        return 0;
    }

    bool goesThroughLink(const path& relative) const {
        path above;
        return std::any_of(relative.begin(), relative.end(),
                           [&](const path& part) { return links_.contains(above /= part); });
    }

    int objectionToLink(archive_entry* entry, const path& relative) {
        const char* target = archive_entry_symlink(entry);
        if (!target || !staysInside(relative, target)) return updateArchiveLink;
        links_.insert(relative);
        return 0;
    }

    int redirectHardLink(archive_entry* entry, const char* target) {
        const auto [relative, objection] = entryPath(target);
        if (objection != 0 || relative.empty() || goesThroughLink(relative))
            return updateArchiveLink;
        archive_entry_set_hardlink(entry, (folder_ / relative).c_str());
        // A hard link is only another name, so it must not change the file's mode or bytes.
        archive_entry_unset_size(entry);
        archive_entry_set_perm(entry, 0);
        return 0;
    }

    bool hasRoom(archive_entry* entry) const {
        struct statvfs disk {};
        if (::statvfs(folder_.c_str(), &disk) != 0) return true;
        const auto room = disk.f_bavail * disk.f_frsize;
        return static_cast<fsblkcnt_t>(archive_entry_size(entry)) <= room;
    }

    std::optional<UpdateError> copyData() {
        for (;;) {
            const void* bytes = nullptr;
            std::size_t size = 0;
            la_int64_t offset = 0;
            const int result = archive_read_data_block(reader_.get(), &bytes, &size, &offset);
            if (result == ARCHIVE_EOF) return std::nullopt;
            if (result < ARCHIVE_WARN) return updateError(updateArchiveDamaged);
            if (stop_.stop_requested()) return updateError(updateCancelled);
            written_ += static_cast<qint64>(size);
            if (written_ > announced_) return updateError(updateArchiveDamaged);
            if (archive_write_data_block(writer_.get(), bytes, size, offset) < ARCHIVE_WARN)
                return writeError();
        }
    }

    /// Closing the writer sets the modes and times of folders.
    std::optional<UpdateError> finish() {
        if (archive_write_close(writer_.get()) < ARCHIVE_WARN) return writeError();
        return std::nullopt;
    }

    /// The error for what could not be written.
    UpdateError writeError() const { return fileError(archive_errno(writer_.get())); }

    path folder_;
    UnpackLimits limits_;
    const std::stop_token& stop_;
    Owned reader_{archive_read_new(), archive_read_free};
    Owned writer_{archive_write_disk_new(), archive_write_free};
    /// Paths of what was made so far, relative to the folder: everything but folders, and symbolic
    /// links only.
    std::set<path> files_;
    std::set<path> links_;
    int entries_ = 0;
    qint64 announced_ = 0;
    qint64 written_ = 0;
};

} // namespace

std::optional<UpdateError> unpack(std::string_view archive, const path& folder, UnpackLimits limits,
                                  const std::stop_token& stop) {
    if (!libarchive.load()) return updateError(updateArchiveDamaged);
    return Unpacking{folder, limits, stop}.run(archive);
}

} // namespace quillon
