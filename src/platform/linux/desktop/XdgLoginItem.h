#pragma once

#include "platform/Folders.h"
#include "platform/LoginItem.h"

#include <filesystem>

namespace quillon {

/// Opens the program at login by an entry in the user's autostart folder (freedesktop.org's Desktop
/// Application Autostart standard). The user and the desktop may edit the entry.
class XdgLoginItem final : public LoginItem {
public:
    /// `executable` is the program where it is now.
    XdgLoginItem(const Folders& folders, std::filesystem::path executable);

    [[nodiscard]] Status status() const override;
    bool registerItem() override;
    bool unregisterItem() override;
    void follow(const std::filesystem::path& executable) override;
    void followIfLost(const std::filesystem::path& executable) override;

private:
    std::filesystem::path file_;
    std::filesystem::path executable_;
};

} // namespace quillon
