#include "ui/controls/AppIcon.h"

#include "ui/controls/BrandViews.h"
#include "ui/controls/PaintedIcon.h"

namespace quillon {

QIcon appIcon() {
    // The sizes that title bars, task bars and window switchers show.
    return QIcon{new PaintedIcon{paintAppIcon, {16, 24, 32, 48, 64, 128}}};
}

} // namespace quillon
