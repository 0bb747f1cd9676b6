#pragma once

#include <QRect>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct _AtspiAccessible; // NOLINT: the library's name

namespace quillon::test {

/// Something in a window of the program, as the accessibility bus knows it. Every question asks the
/// program anew; one that is gone has no name and no states.
class Control {
public:
    Control() = default;
    /// Takes over the reference.
    explicit Control(_AtspiAccessible* accessible);

    [[nodiscard]] explicit operator bool() const { return accessible_ != nullptr; }

    /// As the bus names roles, such as "push button".
    [[nodiscard]] std::string role() const;
    [[nodiscard]] std::string name() const;
    [[nodiscard]] std::string description() const;
    /// All states it has, as the bus names them, such as "focused".
    [[nodiscard]] std::vector<std::string> states() const;
    [[nodiscard]] bool is(const std::string& state) const;
    /// What is read in a field.
    [[nodiscard]] std::string text() const;
    /// On the screen.
    [[nodiscard]] QRect place() const;
    [[nodiscard]] std::vector<Control> children() const;
    /// Actions that it offers.
    [[nodiscard]] std::vector<std::string> actions() const;

    /// Does its first action: what a click does.
    void press() const;
    /// Puts the text into a field.
    void enter(const std::string& text) const;

private:
    std::shared_ptr<_AtspiAccessible> accessible_;
};

/// A screen reader: finds the program's controls on the accessibility bus, by what they are and
/// what they are called, and hears what the program announces.
class ScreenReader {
public:
    /// Tells the session that assistive technology is in use, as a screen reader does that starts.
    ScreenReader();
    ~ScreenReader();

    /// Whether a control is meant.
    using Which = std::function<bool(const Control&)>;

    /// The first one that shows, from the top of each window down; nothing when there is none.
    [[nodiscard]] Control find(const Which& which) const;
    [[nodiscard]] Control find(const std::string& role, const std::string& name) const;
    /// Waits until such a control shows and can be used; a failure of the test if none comes.
    Control wait(const std::string& role, const std::string& name) const;
    [[nodiscard]] bool shows(const std::string& role, const std::string& name) const {
        return bool{find(role, name)};
    }
    /// What has the keyboard.
    [[nodiscard]] Control focused() const;
    /// The program's windows.
    [[nodiscard]] static std::vector<Control> windows();

    /// What would have been read out since the last forgetAnnouncements(): names of alerts and
    /// notifications that have appeared.
    [[nodiscard]] const std::vector<std::string>& announcements() const;
    void forgetAnnouncements();

private:
    struct Ears;
    std::unique_ptr<Ears> ears_;
};

} // namespace quillon::test
