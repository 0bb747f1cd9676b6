#pragma once

#include "ui/accessibility/View.h"

#include <optional>
#include <string>

namespace quillon {

class IconLabel;
class SymbolView;
class TelegramIcon;

/// The top of the panel: the program's icon and name, and whether it is connected.
class PanelHeader : public View {
    Q_OBJECT

public:
    PanelHeader();

    /// `group` is the title of the group, if it is known.
    void setStatus(bool ready, const std::optional<std::string>& group);

private:
    TelegramIcon* connected_;
    SymbolView* notSetUp_;
    IconLabel* status_;
};

} // namespace quillon
