#pragma once

#include "platform/Folders.h"
#include "platform/Workspace.h"

namespace quillon {

/// Uses the freedesktop.org trash, /proc and desktop entries.
class LinuxWorkspace final : public Workspace {
public:
    explicit LinuxWorkspace(Folders folders);

    [[nodiscard]] std::vector<std::filesystem::path>
    runningApplications(std::string_view identifier) const override;
    [[nodiscard]] QFuture<bool> trash(std::filesystem::path path) override;
    void listApplication(const std::filesystem::path& application) override;
    void unlistApplication() override;
    [[nodiscard]] QFuture<void> removeKeyBindings() override;
    void activate() override;
    void bringToFront(QWindow& window) override;
    void keepOffTaskBar(QWindow& window) override;
    [[nodiscard]] QScreen* screenInUse() const override;
    [[nodiscard]] bool pointerPressed() const override;
    void openAfterExit(const std::filesystem::path& application) override;
    void terminate() override;
    void exitNow(int status) override;

private:
    Folders folders_;
};

} // namespace quillon
