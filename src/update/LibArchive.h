#pragma once

#include "base/LateLibrary.h"

#include <archive.h>
#include <archive_entry.h>

namespace quillon {

/// What unpacks archives, which is needed once for each update. It depends on ten libraries.
inline constinit const LateLibrary libarchive{QUILLON_ARCHIVE};

QUILLON_LATE(libarchive, archive_entry_filetype);
QUILLON_LATE(libarchive, archive_entry_hardlink);
QUILLON_LATE(libarchive, archive_entry_pathname);
QUILLON_LATE(libarchive, archive_entry_pathname_utf8);
QUILLON_LATE(libarchive, archive_entry_perm);
QUILLON_LATE(libarchive, archive_entry_set_hardlink);
QUILLON_LATE(libarchive, archive_entry_set_pathname);
QUILLON_LATE(libarchive, archive_entry_set_perm);
QUILLON_LATE(libarchive, archive_entry_size);
QUILLON_LATE(libarchive, archive_entry_symlink);
QUILLON_LATE(libarchive, archive_entry_unset_size);
QUILLON_LATE(libarchive, archive_errno);
QUILLON_LATE(libarchive, archive_read_data_block);
QUILLON_LATE(libarchive, archive_read_free);
QUILLON_LATE(libarchive, archive_read_new);
QUILLON_LATE(libarchive, archive_read_next_header);
QUILLON_LATE(libarchive, archive_read_open_memory);
QUILLON_LATE(libarchive, archive_read_support_filter_gzip);
QUILLON_LATE(libarchive, archive_read_support_filter_xz);
QUILLON_LATE(libarchive, archive_read_support_filter_zstd);
QUILLON_LATE(libarchive, archive_read_support_format_tar);
QUILLON_LATE(libarchive, archive_write_close);
QUILLON_LATE(libarchive, archive_write_data_block);
QUILLON_LATE(libarchive, archive_write_disk_new);
QUILLON_LATE(libarchive, archive_write_disk_set_options);
QUILLON_LATE(libarchive, archive_write_finish_entry);
QUILLON_LATE(libarchive, archive_write_free);
QUILLON_LATE(libarchive, archive_write_header);

} // namespace quillon
