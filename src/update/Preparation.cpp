#include "update/Preparation.h"

#include "base/Bytes.h"
#include "platform/FileSystem.h"
#include "platform/HttpTransport.h"
#include "platform/linux/files/PosixFileSystem.h"
#include "platform/linux/files/TreeCopy.h"
#include "update/Archive.h"
#include "update/Errors.h"
#include "update/Version.h"

#include <QCoro/QCoroFuture>
#include <QtConcurrentRun>

#include <chrono>
#include <memory>
#include <utility>

namespace quillon {

namespace {

using std::filesystem::path;

constexpr std::string_view publicKeyName = "SUPublicEDKey";

constexpr int statusOk = 200;

/// A server that sends a few bytes at a time must not keep the user waiting or delay later checks.
constexpr std::chrono::seconds feedTimeout{60};

std::optional<UpdateError> downloadError(DownloadOutcome outcome) {
    using enum DownloadOutcome;
    if (outcome == done) return std::nullopt;
    if (outcome == tooLarge) return updateError(updateLengthWrong);
    if (outcome == unwritable) return updateError(updateDownloadNotStored);
    if (outcome == diskFull) return fileError(ENOSPC);
    if (outcome == stopped) return updateError(updateCancelled);
    return updateError(updateDownloadFailed);
}

/// Everything that another thread needs to download and check an archive.
struct Delivery {
    Bundle running;
    FeedItem item;
    PublicKey key{};
    path archive;
    path staging;
    std::stop_token stop;
};

using Prepared = std::variant<PreparedUpdate, UpdateError>;

/// Unpacks the very bytes that it checks, because the file may be replaced meanwhile.
std::optional<UpdateError> unpackChecked(const Delivery& delivery) {
    const FeedItem& item = delivery.item;
    const FileReading archive = PosixFileSystem{}.read(delivery.archive, item.length);
    if (archive.outcome != FileReading::Outcome::read || archive.size != item.length)
        return updateError(updateLengthWrong);
    if (!isSigned(asText(archive.bytes), item.signature, delivery.key))
        return updateError(updateSignatureWrong);
    return unpack(asText(archive.bytes), delivery.staging, {}, delivery.stop);
}

/// The caller sets the owner of the folder.
Prepared stage(const Delivery& delivery) {
    const path& folder = delivery.staging;
    if (auto error = unpackChecked(delivery)) return std::move(*error);
    auto staged = checkStaged(folder, delivery.running, delivery.item);
    if (auto* error = std::get_if<UpdateError>(&staged)) return std::move(*error);
    if (!flushTree(folder)) return updateError(updateCopyFailed);
    if (delivery.stop.stop_requested()) return updateError(updateCancelled);
    return PreparedUpdate{.bundle = delivery.running.url,
                          .staged = std::get<path>(std::move(staged)),
                          .folder = {},
                          .item = delivery.item};
}

/// The code of the error for an item that need not be downloaded at all; 0 if there is none.
int objectionTo(const FeedItem& item, const Bundle& running) {
    if (!parsePublicKey(running.text(publicKeyName).value_or(""))) return updateKeyMissing;
    if (!isAllowedUrl(item.url)) return updateNotAllowed;
    if (std::is_lteq(compareVersions(item.version, comparedVersion(running))))
        return updateNotNewer;
    return 0;
}

/// Downloads and checks what `delivery` describes.
QCoro::Task<Prepared> deliver(Platform& platform, Delivery delivery,
                              std::function<void(UpdateProgress)> progress) {
    const qint64 total = delivery.item.length;
    // What the transport reports after the end of the download, or of this task, is dropped.
    auto listener = std::make_shared<std::function<void(UpdateProgress)>>(progress);
    HttpDownload download;
    download.url = delivery.item.url;
    download.file = delivery.archive;
    download.maximumSize = total;
    download.progress = [heard = std::weak_ptr{listener}, total](qint64 received, qint64) {
        const auto tell = heard.lock();
        if (tell && *tell) (*tell)({.received = received, .total = total});
    };
    download.stop = delivery.stop;
    const QFuture<DownloadOutcome> downloading = platform.http.download(std::move(download));
    const DownloadOutcome outcome = co_await downloading;
    listener.reset();
    if (const auto error = downloadError(outcome)) co_return *error;

    if (progress)
        progress({.stage = UpdateProgress::Stage::unpacking, .received = total, .total = total});
    const QFuture<Prepared> preparing = QtConcurrent::run(stage, std::move(delivery));
    co_return co_await preparing;
}

} // namespace

QCoro::Task<std::variant<std::vector<FeedItem>, UpdateError>>
fetchFeed(Platform& platform, std::string url, std::stop_token stop) {
    if (!isAllowedUrl(url)) co_return updateError(updateFeedNotAllowed);
    HttpRequest request;
    request.url = std::move(url);
    request.totalTimeout = feedTimeout;
    request.stop = std::move(stop);
    const QFuture<std::optional<HttpReply>> fetching = platform.http.get(std::move(request));
    const std::optional<HttpReply> reply = co_await fetching;
    if (!reply || reply->status != statusOk) co_return updateError(updateFeedUnreachable);
    const QFuture<std::optional<std::vector<FeedItem>>> parsing =
        QtConcurrent::run(parseFeed, reply->body);
    std::optional<std::vector<FeedItem>> items = co_await parsing;
    if (!items) co_return updateError(updateFeedBroken);
    co_return std::move(*items);
}

QCoro::Task<Prepared> prepareUpdate(Platform& platform, FeedItem item,
                                    std::function<void(UpdateProgress)> progress,
                                    std::stop_token stop) {
    const Bundle& running = platform.bundle;
    if (const int code = objectionTo(item, running); code != 0) co_return updateError(code);

    // This comes before the download, so that nothing is fetched in vain.
    const auto staging = makeStaging(running.url);
    if (const auto* error = std::get_if<UpdateError>(&staging)) co_return *error;
    const auto& folder = std::get<std::shared_ptr<PrivateFolder>>(staging);
    const path cache = platform.folders.cache / running.folderName();
    if (!platform.files.createFolder(cache)) co_return updateError(updateDownloadNotStored);
    const PrivateFolder downloads{cache, downloadPrefix};
    if (!downloads.isOpen()) co_return updateError(updateDownloadNotStored);

    Delivery delivery{.running = running,
                      .item = std::move(item),
                      .key = parsePublicKey(running.text(publicKeyName).value_or("")).value(),
                      .archive = downloads.path() / "archive",
                      .staging = folder->path(),
                      .stop = std::move(stop)};
    QCoro::Task<Prepared> delivering = deliver(platform, std::move(delivery), std::move(progress));
    Prepared prepared = co_await delivering;

    // The owners of the folders would remove them too, but on this thread.
    const QFuture<void> removing = QtConcurrent::run(discardTree, downloads.path());
    co_await removing;
    if (auto* update = std::get_if<PreparedUpdate>(&prepared)) {
        update->folder = folder;
    } else {
        const QFuture<void> undoing = QtConcurrent::run(discardTree, folder->path());
        co_await undoing;
    }
    co_return std::move(prepared);
}

} // namespace quillon
