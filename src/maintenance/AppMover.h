#pragma once

#include "maintenance/Alerts.h"

#include <QCoroTask>

#include <exception>
#include <filesystem>
#include <optional>
#include <string>

namespace quillon {

struct Platform;

/// Why the application could not be moved.
struct MoveError : std::exception {
    explicit MoveError(std::string sentence) : errorDescription{std::move(sentence)} {}

    [[nodiscard]] const char* what() const noexcept override {
        return errorDescription ? errorDescription->c_str() : "";
    }

    /// A finished sentence for the user.
    std::optional<std::string> errorDescription;
};

/// Offers to move the application to an Applications folder, where it can update itself, and does
/// it. Outlives its tasks.
class AppMover {
public:
    /// The preference that holds true once the user has declined; the offer is not made again.
    static constexpr std::string_view declinedKey = "qln.moveDeclined";

    AppMover(Platform& platform, Alerts& alerts) : platform_{platform}, alerts_{alerts} {}

    /// Whether it runs from an application folder that is in no Applications folder.
    [[nodiscard]] bool shouldAsk() const;
    /// Whether what is at the path lies right in the Applications folder of all users or of this
    /// one, links to either followed.
    [[nodiscard]] bool isInApplications(const std::filesystem::path& url) const;

    /// Shows the offer; when it is accepted, moves and relaunches. True only when the process is
    /// about to end for that.
    [[nodiscard]] QCoro::Task<bool> ask();

    /// Moves the application, an older copy going to the trash, and has the desktop's entries
    /// follow it. Gives the new place; throws MoveError.
    [[nodiscard]] QCoro::Task<std::filesystem::path> move();

    /// The place of an application that the system runs from a hidden copy; none when the system
    /// cannot tell. Linux makes no such copies, so it never can.
    [[nodiscard]] static std::optional<std::filesystem::path>
    originalURL(const std::filesystem::path& ofTranslocated);

    /// Ends this process the normal way and then opens the application at the path.
    void relaunch(const std::filesystem::path& at);

    /// The offer.
    [[nodiscard]] static Alert makeAlert();

private:
    [[nodiscard]] std::filesystem::path source() const;
    [[nodiscard]] std::filesystem::path targetFolder() const;
    [[nodiscard]] std::filesystem::path homeApplications() const;
    [[nodiscard]] bool isRunning(const std::filesystem::path& application) const;
    [[nodiscard]] QCoro::Task<> makeRoom(std::filesystem::path destination);

    Platform& platform_;
    Alerts& alerts_;
};

} // namespace quillon
