#pragma once

#include <filesystem>

namespace quillon {

/// Starting the program when its user logs in, as the desktop keeps it.
class LoginItem {
public:
    enum class Status {
        notRegistered = 0,
        enabled = 1,
        requiresApproval = 2, ///< registered, but the user or the desktop has switched it off
        notFound = 3,         ///< registered, but what it would start is not there
    };

    virtual ~LoginItem() = default;

    [[nodiscard]] virtual Status status() const = 0;

    /// Has the program, where it is now, started at login. False when that could not be stored.
    virtual bool registerItem() = 0;
    /// False when there is an item that could not be removed.
    virtual bool unregisterItem() = 0;

    /// Lets an item that is there start the program from this executable; nothing else of it
    /// changes, and without an item nothing happens.
    virtual void follow(const std::filesystem::path& executable) = 0;
};

} // namespace quillon
