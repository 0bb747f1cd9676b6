#pragma once

#include <QPixmap>
#include <QStringList>

#include <functional>
#include <string>
#include <vector>

class QWidget;

/// The common part of the programs that take pictures of windows. The environment sets how the
/// windows look: DARK=1 gives dark colours, PSEUDO=1 the pseudo-language of shots/Pseudo.h,
/// WORDS=de the words of a catalogue (with WORDS=de:ja all is done in one language after the
/// other), RTL=1 windows that are written from right to left, and TEXT=1.5 larger text.
/// QT_SCALE_FACTOR works as in any Qt program. The same window always gives the same picture.
namespace quillon::test {

struct Shot {
    std::string name;
    std::function<QPixmap()> take;
};

/// Takes pictures, all or those that the further arguments name, and saves each under its name as a
/// PNG in the folder that the first argument names. With "--list" as the first argument it prints
/// the names instead, and with "--check" the faults of the windows' texts (shots/LayoutCheck.h).
/// `names` are texts in the windows that are not translated, because the user named or sent them.
/// Returns the program's exit status, which is 1 if a picture failed or a fault was found.
[[nodiscard]] int takeShots(int argc, char** argv, const std::vector<Shot>& shots,
                            const QStringList& names);

/// The text as windows show it: in the pseudo-language or the catalogue's language if one is on.
[[nodiscard]] QString shown(const char* text);

/// Runs the event loop until `so` returns true. Throws if that takes too long.
void until(const std::function<bool()>& so);

/// A picture of the window after it has handled its pending events.
[[nodiscard]] QPixmap pictureOf(QWidget& window);

/// The window that shows. Throws if there is none or more than one.
[[nodiscard]] QWidget& onlyWindow();

} // namespace quillon::test
