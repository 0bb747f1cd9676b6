#pragma once

#include "platform/HotKeys.h"
#include "platform/Pasteboard.h"

#include <QFuture>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// Whether somebody is there who answers.
enum class Presence {
    unknown, ///< not asked, or not told in time
    absent,
    silent, ///< there, but does not answer
    answers,
};

/// What the environment and the system say of themselves.
struct SystemTraits {
    bool wayland = false;
    /// What the desktop calls itself, in small letters, the most exact name first.
    std::vector<std::string> desktops{};
    /// As in "Debian GNU/Linux 12 (bookworm)"; may be empty.
    std::string system{};
    /// Names and versions, as in "Qt 6.4.2".
    std::vector<std::string> libraries{};
};

/// What an X server tells.
struct XServerTraits {
    Presence presence = Presence::unknown;
    /// It has a place for icons.
    bool tray = false;
    /// Some program has copied something.
    bool clipboardOwned = false;
};

/// What a Wayland compositor tells.
struct CompositorTraits {
    Presence presence = Presence::unknown;
    /// It shows surfaces over all windows.
    bool layers = false;
};

/// The clipboard now, without its content.
struct ClipboardTraits {
    ClipboardWay way = ClipboardWay::none;
    /// The names of the formats on offer.
    std::vector<std::string> formats{};
};

/// What the session bus tells.
struct BusTraits {
    Presence bus = Presence::unknown;
    /// A keyring service runs, or is started for whoever asks for it.
    bool keyring = false;
    /// A place for icons of the kind that is reached over the bus.
    bool trayHost = false;
};

/// What may be done with a folder, and what it has room for.
struct FolderTraits {
    bool exists = false;
    /// Entries can be made in it, and the files in it be changed.
    bool writable = false;
    /// Others than the user may look into it.
    bool open = false;
    /// For this user, in bytes.
    std::optional<std::uint64_t> room{};
};

/// Looks at what the program runs on, without changing anything and without asking the user. Each
/// look that may have to wait for somebody is a future of its own, which may never finish: whoever
/// is asked may hang. Main thread only.
class Surroundings {
public:
    virtual ~Surroundings() = default;

    [[nodiscard]] virtual QFuture<SystemTraits> system() const = 0;
    [[nodiscard]] virtual QFuture<XServerTraits> xServer() const = 0;
    [[nodiscard]] virtual QFuture<CompositorTraits> compositor() const = 0;
    /// Opens a way to the clipboard of its own, for processes that have none.
    [[nodiscard]] virtual QFuture<ClipboardTraits> clipboard() const = 0;
    [[nodiscard]] virtual QFuture<BusTraits> bus() const = 0;
    [[nodiscard]] virtual QFuture<FolderTraits> folder(std::filesystem::path path) const = 0;
    /// Whether sounds can be heard: a sound server answers, or there is a sound card.
    [[nodiscard]] virtual QFuture<Presence> sound() const = 0;

    /// The program that has Control and Alt with the key among the desktop's shortcuts, by the name
    /// that the desktop gives it; empty where the desktop does not tell, or nobody has it there.
    [[nodiscard]] virtual QFuture<std::string> holder(PhysicalKey key) const = 0;

    /// Whether the key could be had as a hot key, by taking it for a moment; none where that cannot
    /// be tried without asking the user. Waits for the X server: ask only one that answers.
    [[nodiscard]] virtual std::optional<bool> isFree(PhysicalKey key) const = 0;
};

} // namespace quillon
