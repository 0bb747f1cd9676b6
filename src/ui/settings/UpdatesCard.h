#pragma once

#include "ui/controls/Card.h"
#include "ui/controls/Refresher.h"

namespace quillon {

class Switch;
class TextButton;
class Updater;

/// The settings card about updates: whether the program looks for them by itself, its version, and
/// a button that looks for them now.
class UpdatesCard : public Card {
    Q_OBJECT

public:
    explicit UpdatesCard(Updater& updater);

private:
    void refresh();
    void setAutomatic(bool automatically);

    Updater& updater_;
    Switch* automatic_;
    TextButton* check_;
    Refresher refresher_;
};

} // namespace quillon
