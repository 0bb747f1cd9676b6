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

    /// The places that are removed, in this order; every one of them right below this user's data,
    /// cache or state folder or below a folder of these.
    [[nodiscard]] std::array<std::filesystem::path, 6> folders() const;

    /// Removes everything, going on whatever fails, and ends the process at once with status 0.
    /// `onTrashed` is called before that, unless the application could not go to the trash, which
    /// the user is told.
    [[nodiscard]] QCoro::Task<> run(std::function<void()> onTrashed = {});

private:
    [[nodiscard]] QCoro::Task<bool> trashApplication();

    Platform& platform_;
    Store& store_;
    Analytics& analytics_;
    Alerts& alerts_;
};

} // namespace quillon
