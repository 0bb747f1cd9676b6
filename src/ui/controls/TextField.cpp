#include "ui/controls/TextField.h"

#include "base/ShownText.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QPainter>

#include <algorithm>

namespace quillon {
namespace {

constexpr int besideText = 6;
constexpr int aboveText = 4;
constexpr double leastHeight = 28;
constexpr double usualWidth = 160;
constexpr double leastWidth = 80;

} // namespace

TextField::TextField() {
    // The style draws nothing but the text. (With a style sheet, Qt would keep the first colours.)
    setFrame(false);
    setMaxLength(longestShown);
    QPalette bare;
    bare.setColor(QPalette::Base, Qt::transparent);
    setPalette(bare);
    setTextMargins(besideText, 0, besideText, 0);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize TextField::sizeHint() const {
    const int text = fontMetrics().height() + 2 * aboveText;
    const int least = Theme::wholeLength(leastHeight);
    return {static_cast<int>(Theme::length(usualWidth)), std::max(text, least)};
}

QSize TextField::minimumSizeHint() const {
    return {static_cast<int>(Theme::length(leastWidth)), sizeHint().height()};
}

void TextField::paintEvent(QPaintEvent* event) {
    const Theme theme = this->theme();
    {
        QPainter painter{this};
        const QColor base = QGuiApplication::palette().color(QPalette::Active, QPalette::Base);
        paintBox(painter, rect(), Space::controlRadius, theme.fill(base), theme.pressedFill());
        // Users of the mouse, too, need to see where the text goes.
        if (hasFocus()) theme.paintFocusRing(painter, rect(), Space::controlRadius);
    }
    Themed::paintEvent(event);
}

} // namespace quillon
