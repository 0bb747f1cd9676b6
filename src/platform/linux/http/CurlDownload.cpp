#include "platform/linux/http/CurlDownload.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace quillon {

namespace {

constexpr long statusOk = 200;

} // namespace

CurlDownload::CurlDownload(HttpDownload download, std::uint64_t listener,
                           std::function<void()> wake)
    : CurlTransfer{download.url, download.inactivityTimeout, listener, download.stop,
                   std::move(wake)},
      download_{std::move(download)} {
    promise_.start();
}

bool CurlDownload::describe(const CurlTransportOptions& options) {
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    file_ = Descriptor{::open(download_.file.c_str(), flags, ownersFile)};
    if (!file_.isOpen()) {
        noteFileError(errno);
        return false;
    }
    fetch(options);
    // The body of an error reply must not end up in the file.
    curl().easy_setopt(handle(), CURLOPT_FAILONERROR, 1L);
    curl().easy_setopt(handle(), CURLOPT_MAXFILESIZE_LARGE,
                       static_cast<curl_off_t>(download_.maximumSize));
    curl().easy_setopt(handle(), CURLOPT_WRITEFUNCTION, &CurlDownload::takeBytes);
    curl().easy_setopt(handle(), CURLOPT_WRITEDATA, this);
    return true;
}

CurlTransfer::Progress CurlDownload::progress() const {
    curl_off_t total = -1;
    if (handle()) curl().easy_getinfo(handle(), CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &total);
    return {.done = received_, .total = total};
}

size_t CurlDownload::takeBytes(char* bytes, size_t /*one*/, size_t count, void* self) {
    auto& download = *static_cast<CurlDownload*>(self);
    download.received_ += static_cast<qint64>(count);
    if (download.received_ > download.download_.maximumSize) {
        download.trouble_ = DownloadOutcome::tooLarge;
        return 0;
    }
    if (writeAll(download.file_.number(), {bytes, count})) return count;
    download.noteFileError(errno);
    return 0;
}

void CurlDownload::noteFileError(int error) {
    const bool isFull = error == ENOSPC || error == EDQUOT || error == EFBIG;
    trouble_ = isFull ? DownloadOutcome::diskFull : DownloadOutcome::unwritable;
}

DownloadOutcome CurlDownload::outcome(CURLcode code) const {
    if (isStopped()) return DownloadOutcome::stopped;
    if (trouble_) return *trouble_;
    if (code == CURLE_FILESIZE_EXCEEDED) return DownloadOutcome::tooLarge;
    const bool done = code == CURLE_OK && status() == statusOk;
    return done ? DownloadOutcome::done : DownloadOutcome::failed;
}

void CurlDownload::finish(CURLcode code) {
    const bool made = file_.isOpen();
    if (!file_.close() && !trouble_) trouble_ = DownloadOutcome::diskFull;
    const DownloadOutcome result = outcome(code);
    if (made && result != DownloadOutcome::done) ::unlink(download_.file.c_str());
    promise_.addResult(result);
    promise_.finish();
}

} // namespace quillon
