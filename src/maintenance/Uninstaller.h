#pragma once

#include <QCoroTask>

#include <array>
#include <filesystem>
#include <functional>
#include <utility>

namespace quillon {

class Alerts;
class Analytics;
class Store;
struct Platform;

/// Removes the program with all that it has stored on this computer; nothing at Telegram's side is
/// touched. Outlives its task.
class Uninstaller {
public:
    /// `dropUpdates` forgets an update that waits, and removes what updates have left on the disk.
    Uninstaller(Platform& platform, Store& store, Analytics& analytics, Alerts& alerts,
                std::function<QCoro::Task<>()> dropUpdates)
        : platform_{platform},
          store_{store},
          analytics_{analytics},
          alerts_{alerts},
          dropUpdates_{std::move(dropUpdates)} {}

    /// The places that are removed, in this order. Each lies in this user's data, cache or state
    /// folder, or one level deeper.
    [[nodiscard]] std::array<std::filesystem::path, 6> folders() const;

    /// Removes everything, whatever of it fails, and ends the process at once with status 0. Before
    /// that, calls `onTrashed` if the application went to the trash, with whether the keyring has
    /// removed the token, and else tells the user. It waits for the keyring for half a minute.
    [[nodiscard]] QCoro::Task<> run(std::function<void(bool tokenRemoved)> onTrashed = {});

private:
    [[nodiscard]] QCoro::Task<bool> removeToken();

    Platform& platform_;
    Store& store_;
    Analytics& analytics_;
    Alerts& alerts_;
    std::function<QCoro::Task<>()> dropUpdates_;
};

} // namespace quillon
