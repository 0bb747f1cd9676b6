#pragma once

#include "platform/Platform.h"
#include "platform/UpdateFramework.h"
#include "update/Feed.h"
#include "update/Installation.h"

#include <QCoro/QCoroTask>

#include <functional>
#include <stop_token>
#include <string>
#include <variant>
#include <vector>

namespace quillon {

/// The progress of the preparation of an update.
struct UpdateProgress {
    enum class Stage { downloading, unpacking };
    Stage stage = Stage::downloading;
    /// Bytes of the archive.
    qint64 received = 0;
    qint64 total = 0;

    bool operator==(const UpdateProgress&) const = default;
};

/// Fetches and reads the feed at this address, within a minute. It ends soon after a request to
/// stop.
[[nodiscard]] QCoro::Task<std::variant<std::vector<FeedItem>, UpdateError>>
fetchFeed(Platform& platform, std::string url, std::stop_token stop = {});

/// Downloads the item's archive into the cache folder, checks its length and its signature (against
/// the running bundle's "SUPublicEDKey"), unpacks it beside the running bundle and checks the
/// result. Nothing stays on disk after an error. `progress` is called on the main thread, until the
/// task has ended. A request to stop soon ends it with updateCancelled. All long work runs off the
/// main thread; `platform` must outlive the task.
[[nodiscard]] QCoro::Task<std::variant<PreparedUpdate, UpdateError>>
prepareUpdate(Platform& platform, FeedItem item, std::function<void(UpdateProgress)> progress,
              std::stop_token stop);

} // namespace quillon
