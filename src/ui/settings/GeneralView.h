#pragma once

#include "state/BannerPosition.h"
#include "ui/accessibility/View.h"
#include "ui/controls/Refresher.h"
#include "ui/settings/SettingsActions.h"

#include <QPointer>

#include <map>

namespace quillon {

class Card;
class IconLabel;
class PositionCard;
class SegmentedPicker;
class ShortcutNote;
class Store;
class Switch;
class TextButton;
class UninstallSheet;
class Updater;

/// The general settings of the program, and the way to uninstall it.
class GeneralView : public View {
    Q_OBJECT

public:
    GeneralView(Store& store, Updater& updater, SettingsActions actions);

protected:
    void showEvent(QShowEvent* event) override;
    void themeChanged() override;

private:
    [[nodiscard]] Card* buildShortcut();
    [[nodiscard]] Card* buildSending();
    [[nodiscard]] QWidget* buildPositions();
    [[nodiscard]] Card* buildStartup();
    [[nodiscard]] Card* buildTelegram();
    [[nodiscard]] QWidget* buildUninstall();

    void refresh();
    void refreshShortcut();
    void refreshTelegram();
    void pickShortcut(int index);
    void pickPosition(BannerPosition position);
    void confirmUninstall();

    Store& store_;
    SettingsActions actions_;
    SegmentedPicker* shortcut_ = nullptr;
    IconLabel* taken_ = nullptr;
    ShortcutNote* note_ = nullptr;
    Switch* sound_ = nullptr;
    Switch* banner_ = nullptr;
    QWidget* positions_ = nullptr;
    std::map<BannerPosition, PositionCard*> positionCards_;
    Switch* login_ = nullptr;
    IconLabel* bot_ = nullptr;
    IconLabel* group_ = nullptr;
    TextButton* disconnect_ = nullptr;
    QPointer<UninstallSheet> sheet_;
    Refresher refresher_;
};

} // namespace quillon
