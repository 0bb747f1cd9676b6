#pragma once

#include "ui/controls/Card.h"
#include "ui/controls/Refresher.h"

namespace quillon {

class Switch;
class TextButton;
class TileLabel;
class Updater;

/// Whether the program looks for updates by itself, which version it is, and a look for updates
/// now.
class UpdatesCard : public Card {
    Q_OBJECT

public:
    explicit UpdatesCard(Updater& updater, QWidget* parent = nullptr);

private:
    void refresh();
    void setAutomatic(bool automatically);

    Updater& updater_;
    Switch* automatic_;
    TileLabel* version_;
    TextButton* check_;
    Refresher refresher_;
};

} // namespace quillon
