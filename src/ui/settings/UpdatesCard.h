#pragma once

#include "ui/views/Card.h"
#include "ui/views/Refresher.h"

#include <functional>

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
    /// `activate` brings the application to the front, where a check shows its windows.
    UpdatesCard(Updater& updater, std::function<void()> activate, QWidget* parent = nullptr);

private:
    void refresh();
    void setAutomatic(bool automatically);
    void checkNow();

    Updater& updater_;
    std::function<void()> activate_;
    Switch* automatic_;
    TileLabel* version_;
    TextButton* check_;
    Refresher refresher_;
};

} // namespace quillon
