#pragma once

#include "ScreenReader.h"

#include <QProcess>
#include <QTemporaryDir>

namespace quillon::test {

/// What a person has in front of them: a desktop panel with room for icons, the window of another
/// program, a pointer and a keyboard.
class Desk {
public:
    /// Returns once the panel and the other window are there.
    Desk();
    ~Desk();
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    /// Where the panel shows the program's icon; empty while it does not.
    [[nodiscard]] static QRect icon();

    /// Moves the pointer.
    static void point(QPoint there);
    static void click(QPoint there);
    /// Keys by their X names, such as "ctrl+alt+v".
    static void press(const std::string& keys);
    static void type(const std::string& text);

    /// As on desktops that have no room for icons.
    void takePanelAway();
    void bringPanel();

    /// Gives the keyboard to the other program's window.
    static void goToOtherWindow();

private:
    QTemporaryDir files_;
    QProcess panel_;
    QProcess other_;
};

} // namespace quillon::test
