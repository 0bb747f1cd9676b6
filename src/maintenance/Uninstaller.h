#pragma once

#include <QCoroTask>

#include <array>
#include <filesystem>
#include <functional>

namespace quillon {

class Alerts;
class Analytics;
class Store;
struct Platform;

/// Removes the program with all that it has stored on this computer; nothing at Telegram's side is
/// touched. Outlives its task.
class Uninstaller {
public:
    Uninstaller(Platform& platform, Store& store, Analytics& analytics, Alerts& alerts)
        : platform_{platform},
          store_{store},
          analytics_{analytics},
          alerts_{alerts} {}

    /// The places that are removed, in this order. Each lies in this user's data, cache or state
    /// folder, or one level deeper.
    [[nodiscard]] std::array<std::filesystem::path, 6> folders() const;

    /// Removes everything, whatever of it fails, and ends the process at once with status 0. Before
    /// that, calls `onTrashed` if the application went to the trash, and else tells the user.
    [[nodiscard]] QCoro::Task<> run(std::function<void()> onTrashed = {});

private:
    Platform& platform_;
    Store& store_;
    Analytics& analytics_;
    Alerts& alerts_;
};

} // namespace quillon
