#pragma once

#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>

namespace quillon {

class Workspace;

/// The settings window: made when it is first shown, and the same one ever after.
class SettingsWindow {
public:
    /// The content calls this with its height in device-independent pixels, each time that changes.
    using Fit = std::function<void(double height)>;
    /// Makes the content, which shows its first tab.
    using MakeContent = std::function<std::unique_ptr<QWidget>(Fit fit)>;

    explicit SettingsWindow(Workspace& workspace, MakeContent makeContent);
    ~SettingsWindow();
    SettingsWindow(const SettingsWindow&) = delete;
    SettingsWindow& operator=(const SettingsWindow&) = delete;

    /// Brings the window to the front, in the middle of the screen when it is new and otherwise
    /// where the user left it.
    void show();

private:
    void make();
    /// Makes the window as high as its content, its top edge staying where it is; on the next turn
    /// of the event loop.
    void fit(double height);

    Workspace& workspace_;
    MakeContent makeContent_;
    std::unique_ptr<QWidget> window_;
};

} // namespace quillon
