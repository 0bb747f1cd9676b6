#pragma once

#include <QPixmap>
#include <QStringList>

#include <functional>
#include <string>
#include <vector>

class QWidget;

/// What the programs that take pictures of windows have in common. The environment tells how the
/// windows look: DARK=1 gives dark colours, PSEUDO=1 the pseudo-language of shots/Pseudo.h, RTL=1
/// windows that are written from the right, TEXT=1.5 larger text; QT_SCALE_FACTOR does what it does
/// for every program. The same window gives the same picture each time.
namespace quillon::test {

struct Shot {
    std::string name;
    std::function<QPixmap()> take;
};

/// Takes the pictures into the folder that is the first argument, one PNG of its name for each;
/// all, or those that the other arguments name. "--list" prints the names instead, and "--check"
/// what is wrong with the windows' texts (shots/LayoutCheck.h). `names` are texts in the windows
/// that no catalogue has: what the user named or sent. Gives the program's exit status: 1 when a
/// picture did not come out, or something was wrong.
[[nodiscard]] int takeShots(int argc, char** argv, const std::vector<Shot>& shots,
                            const QStringList& names);

/// A text of the program as it shows now, in the pseudo-language if that is on.
[[nodiscard]] QString shown(const char* text);

/// Turns the event loop until it is so; throws when that takes too long.
void until(const std::function<bool()>& so);

/// The window as it is when all that it was told to do is done.
[[nodiscard]] QPixmap pictureOf(QWidget& window);

/// The window that shows now; it throws where there is none or more than one.
[[nodiscard]] QWidget& onlyWindow();

} // namespace quillon::test
