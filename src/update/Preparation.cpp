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

#include <array>
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

/// The errors of downloads; the outcome "done" has none.
struct Failure {
    DownloadOutcome outcome;
    int code;
};
constexpr std::array failures{
    Failure{DownloadOutcome::failed, updateDownloadFailed},
    Failure{DownloadOutcome::tooLarge, updateLengthWrong},
    Failure{DownloadOutcome::unwritable, updateDownloadNotStored},
    Failure{DownloadOutcome::stopped, updateCancelled},
};

std::optional<UpdateError> downloadError(DownloadOutcome outcome) {
    if (outcome == DownloadOutcome::diskFull) return fileError(ENOSPC);
    for (const Failure& failure : failures) {
        if (failure.outcome == outcome) return updateError(failure.code);
    }
    return std::nullopt;
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

/// The error if the archive must not be unpacked.
std::optional<UpdateError> objectionToArchive(const FileReading& archive,
                                              const Delivery& delivery) {
    if (archive.outcome != FileReading::Outcome::read || archive.size != delivery.item.length)
        return updateError(updateLengthWrong);
    if (!isSigned(asText(archive.bytes), delivery.item.signature, delivery.key))
        return updateError(updateSignatureWrong);
    return std::nullopt;
}

/// Unpacks the very bytes that were checked, because the file may have been replaced meanwhile.
std::optional<UpdateError> unpackChecked(const Delivery& delivery) {
    const FileReading archive = PosixFileSystem{}.read(delivery.archive, delivery.item.length);
    if (auto error = objectionToArchive(archive, delivery)) return error;
    return unpack(asText(archive.bytes), delivery.staging, {}, delivery.stop);
}

/// The caller sets the owner of the folder.
Prepared stage(const Delivery& delivery) {
    const path& folder = delivery.staging;
    if (auto error = unpackChecked(delivery)) return std::move(*error);
    StagedBundle staged = checkStaged(folder, delivery.running, delivery.item);
    if (staged.error) return std::move(*staged.error);
    if (!flushTree(folder)) return updateError(updateCopyFailed);
    if (delivery.stop.stop_requested()) return updateError(updateCancelled);
    return PreparedUpdate{.bundle = delivery.running.url,
                          .staged = std::move(staged.path),
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

/// Passes progress on for as long as its owner lives. What the transport reports after the end of
/// the download is dropped.
class ProgressReport {
public:
    ProgressReport(std::function<void(UpdateProgress)> listener, qint64 length)
        : state_{std::make_shared<State>()} {
        state_->listener = std::move(listener);
        state_->progress.total = length;
    }

    [[nodiscard]] std::function<void(qint64, qint64)> ofDownload() const {
        return [weak = std::weak_ptr{state_}](qint64 received, qint64 /*total*/) {
            const auto state = weak.lock();
            if (!state || state->progress.stage != UpdateProgress::Stage::downloading) return;
            state->progress.received = received;
            tell(*state);
        };
    }
    void unpacking() const {
        state_->progress.stage = UpdateProgress::Stage::unpacking;
        state_->progress.received = state_->progress.total;
        tell(*state_);
    }

private:
    struct State {
        std::function<void(UpdateProgress)> listener;
        UpdateProgress progress;
    };

    static void tell(const State& state) {
        if (state.listener) state.listener(state.progress);
    }

    std::shared_ptr<State> state_;
};

/// Downloads and checks what `delivery` describes.
QCoro::Task<Prepared> deliver(Platform& platform, Delivery delivery, ProgressReport report) {
    HttpDownload download;
    download.url = delivery.item.url;
    download.file = delivery.archive;
    download.maximumSize = delivery.item.length;
    download.progress = report.ofDownload();
    download.stop = delivery.stop;
    const QFuture<DownloadOutcome> downloading = platform.http.download(std::move(download));
    const DownloadOutcome outcome = co_await downloading;
    if (const auto error = downloadError(outcome)) co_return *error;

    report.unpacking();
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
    const Staging staging = makeStaging(running.url);
    if (staging.error) co_return *staging.error;
    const path cache = platform.folders.cache / running.folderName();
    if (!platform.files.createFolder(cache)) co_return updateError(updateDownloadNotStored);
    const PrivateFolder downloads{cache, downloadPrefix};
    if (!downloads.isOpen()) co_return updateError(updateDownloadNotStored);

    const ProgressReport report{std::move(progress), item.length};
    Delivery delivery{.running = running,
                      .item = std::move(item),
                      .key = parsePublicKey(running.text(publicKeyName).value_or("")).value(),
                      .archive = downloads.path() / "archive",
                      .staging = staging.folder->path(),
                      .stop = std::move(stop)};
    QCoro::Task<Prepared> delivering = deliver(platform, std::move(delivery), report);
    Prepared prepared = co_await delivering;

    // The owners of the folders would remove them too, but on this thread.
    const QFuture<void> removing = QtConcurrent::run(discardTree, downloads.path());
    co_await removing;
    if (auto* update = std::get_if<PreparedUpdate>(&prepared)) {
        update->folder = staging.folder;
    } else {
        const QFuture<void> undoing = QtConcurrent::run(discardTree, staging.folder->path());
        co_await undoing;
    }
    co_return std::move(prepared);
}

} // namespace quillon
