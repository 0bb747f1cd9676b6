#pragma once

#include <filesystem>

namespace quillon {

/// The desktop's setting that starts the program when its user logs in.
class LoginItem {
public:
    enum class Status {
        notRegistered = 0,
        enabled = 1,
        requiresApproval = 2, ///< registered, but the user or the desktop has switched it off
        notFound = 3,         ///< registered, but the program it would start is missing
    };

    virtual ~LoginItem() = default;

    [[nodiscard]] virtual Status status() const = 0;

    /// Has the program started at login from where it is now. False if that could not be stored.
    virtual bool registerItem() = 0;
    /// False if there is an item that could not be removed.
    virtual bool unregisterItem() = 0;

    /// Lets an existing item start the program from this executable, without changing anything else
    /// of it. Does nothing if there is no item.
    virtual void follow(const std::filesystem::path& executable) = 0;
    /// The same, but only where the item's own program is gone: a command that still starts
    /// something is the user's.
    virtual void followIfLost(const std::filesystem::path& executable) = 0;
};

} // namespace quillon
