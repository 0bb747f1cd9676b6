#pragma once

#include <QFuture>

#include <filesystem>
#include <string_view>
#include <vector>

class QScreen;
class QWindow;

namespace quillon {

/// The desktop's view of applications: where they lie, which ones run, and how they end.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// The application folders of all running programs with this bundle identifier, this program
    /// included if it has it.
    [[nodiscard]] virtual std::vector<std::filesystem::path>
    runningApplications(std::string_view identifier) const = 0;

    /// Moves the item to the user's trash, from where it can be put back. False if it stays where
    /// it is.
    [[nodiscard]] virtual QFuture<bool> trash(std::filesystem::path path) = 0;

    /// Lists the application folder among the desktop's applications, replacing any that was listed
    /// before.
    virtual void listApplication(const std::filesystem::path& application) = 0;
    virtual void unlistApplication() = 0;
    /// Removes the program's key bindings from the desktop's own settings, where it has any.
    [[nodiscard]] virtual QFuture<void> removeKeyBindings() = 0;

    /// Brings this application's windows to the front.
    virtual void activate() = 0;
    /// Brings one of this application's visible windows to the front and gives it the focus, even
    /// where the desktop keeps programs from taking it. Only for a window that the user has just
    /// asked for.
    virtual void bringToFront(QWindow& window) = 0;
    /// Keeps one of this application's windows out of the desktop's lists of windows. To be called
    /// each time before the window shows.
    virtual void keepOffTaskBar(QWindow& window) = 0;
    /// The screen on which the user works: that of the active window or, where the desktop tells of
    /// none, of the pointer. Null if there is no screen at all.
    [[nodiscard]] virtual QScreen* screenInUse() const = 0;
    /// Whether a button of the pointer is held down, wherever that is; false where the desktop does
    /// not tell.
    [[nodiscard]] virtual bool pointerPressed() const = 0;
    /// Opens the application folder as soon as this process has ended. A failure is ignored.
    virtual void openAfterExit(const std::filesystem::path& application) = 0;
    /// Ends this process the normal way, on the next turn of the event loop.
    virtual void terminate() = 0;
    /// Ends this process here and now; no code that waits for the end runs.
    virtual void exitNow(int status) = 0;
};

} // namespace quillon
