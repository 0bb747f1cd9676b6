#pragma once

#include <QByteArray>
#include <QObject>

#include <cstdint>
#include <string_view>

namespace quillon {

/// Follows the owner of a manager selection (ICCCM, 2.8) on the X server that Qt is connected to,
/// and one property of the owner's window. Whoever owns one manages something for all programs,
/// such as the system tray or the common settings; it may come late, go and come back.
class X11ManagerSelection : public QObject {
    Q_OBJECT

public:
    struct Property {
        std::uint32_t type = 0; ///< an atom
        int format = 0;         ///< bits of one unit: 8, 16 or 32; 0 when there is no property
        QByteArray bytes;
    };

    /// The selection's name comes without the number of the screen, as in "_NET_SYSTEM_TRAY".
    /// Without a property, only the owner is followed. Waits for the server's answers.
    explicit X11ManagerSelection(std::string_view name, std::string_view property = {});

    /// Whether Qt is on an X server; on other displays there is nothing to follow.
    [[nodiscard]] bool isFollowed() const { return selection_ != 0; }
    [[nodiscard]] bool isOwned() const { return window_ != 0; }

    /// The property's beginning, up to as many units of four bytes. Waits for the server's answer.
    [[nodiscard]] Property property(std::uint32_t length) const;

    /// Has the owner's window tell when its property changes. To be called again after others have
    /// asked that window for less on the same connection.
    void listen() const;

Q_SIGNALS:
    /// Another owner has come, or the owner has gone.
    void ownerChanged();
    void propertyChanged();

private:
    void setOwner(std::uint32_t window);

    std::uint32_t selection_ = 0;
    std::uint32_t property_ = 0;
    std::uint32_t window_ = 0;
};

} // namespace quillon
