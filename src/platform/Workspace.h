#pragma once

#include <QFuture>

#include <filesystem>
#include <string_view>
#include <vector>

class QWindow;

namespace quillon {

/// The desktop as a place where applications lie, run and end.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// The application folders of all running programs with this bundle identifier, this one
    /// included when it has it.
    [[nodiscard]] virtual std::vector<std::filesystem::path>
    runningApplications(std::string_view identifier) const = 0;

    /// Moves the item to the user's trash, from where it can be put back. False when it stays where
    /// it is.
    [[nodiscard]] virtual QFuture<bool> trash(std::filesystem::path path) = 0;

    /// Lists the application folder among the desktop's applications, in place of one listed
    /// before.
    virtual void listApplication(const std::filesystem::path& application) = 0;
    virtual void unlistApplication() = 0;

    /// Brings this application's windows to the front.
    virtual void activate() = 0;
    /// Gives one of this application's windows, which shows, the focus in front of all others, also
    /// where the desktop keeps programs from taking it: the user has just asked for that window.
    virtual void bringToFront(QWindow& window) = 0;
    /// Opens the application folder as soon as this process has ended. A failure is ignored.
    virtual void openAfterExit(const std::filesystem::path& application) = 0;
    /// Ends this process the normal way, on the next turn of the event loop.
    virtual void terminate() = 0;
    /// Ends this process here and now; nothing that waits for its end runs.
    virtual void exitNow(int status) = 0;
};

} // namespace quillon
