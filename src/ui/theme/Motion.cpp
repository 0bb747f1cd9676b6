#include "ui/theme/Motion.h"

#include <QApplication>
#include <QStyle>

namespace quillon {
namespace {

std::optional<bool> setting;

} // namespace

bool animationsEnabled() {
    return setting.value_or(QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) >
                            0);
}

void setAnimationsEnabled(std::optional<bool> enabled) {
    setting = enabled;
}

} // namespace quillon
