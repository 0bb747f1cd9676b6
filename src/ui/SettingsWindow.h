#pragma once

#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>

namespace quillon {

class Workspace;

/// The settings window. It is made when it is first shown, and kept.
class SettingsWindow {
public:
    /// Called by the content with its height in device-independent pixels, each time that changes.
    using Fit = std::function<void(double height)>;
    /// Makes the content, which shows its first tab.
    using MakeContent = std::function<std::unique_ptr<QWidget>(Fit fit)>;

    explicit SettingsWindow(Workspace& workspace, MakeContent makeContent);
    ~SettingsWindow();
    SettingsWindow(const SettingsWindow&) = delete;
    SettingsWindow& operator=(const SettingsWindow&) = delete;

    /// Brings the window to the front: in the middle of the screen the first time, later where the
    /// user left it.
    void show();

private:
    void make();
    /// Makes the window as high as its content on the next turn of the event loop, as far as there
    /// is room below its top edge, which stays where it is. The content scrolls in a lower window.
    void fit(double height);
    void resize();
    /// The height that the screen has for the content, from its top edge down.
    [[nodiscard]] int room() const;

    Workspace& workspace_;
    MakeContent makeContent_;
    std::unique_ptr<QWidget> window_;
    /// The height that the content needs.
    double wanted_ = 0;
};

} // namespace quillon
