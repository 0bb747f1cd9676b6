#pragma once

#include "platform/Folders.h"
#include "platform/LoginItem.h"

#include <filesystem>

namespace quillon {

/// Opening at login through an XDG autostart entry.
class XdgLoginItem final : public LoginItem {
public:
    /// `executable` is the program where it is now.
    XdgLoginItem(Folders folders, std::filesystem::path executable);

    [[nodiscard]] Status status() const override;
    bool registerItem() override;
    bool unregisterItem() override;
    void follow(const std::filesystem::path& executable) override;

private:
    Folders folders_;
    std::filesystem::path executable_;
};

} // namespace quillon
