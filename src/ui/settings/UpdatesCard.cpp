#include "ui/settings/UpdatesCard.h"

#include "artwork/Palette.h"
#include "maintenance/Updater.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/Switch.h"
#include "ui/settings/SettingRow.h"

namespace quillon {

UpdatesCard::UpdatesCard(Updater& updater)
    : Card{tr("Updates"), "arrow.down.circle.fill"},
      updater_{updater},
      automatic_{new Switch{tr("Check for updates &automatically"), "arrow.triangle.2.circlepath",
                            Palette::purple}},
      check_{new TextButton{tr("Check &now"), "arrow.down.circle"}},
      refresher_{this, [this] { refresh(); }} {
    body()->addWidget(automatic_);
    auto* version = new TileLabel{tr("Version %1").arg(QString::fromStdString(updater.version())),
                                  "info.circle.fill", Palette::gray};
    body()->addLayout(settingRow(version, check_));
    connect(automatic_, &Switch::switched, this, &UpdatesCard::setAutomatic);
    connect(check_, &TextButton::clicked, this, [this] { updater_.checkForUpdates(); });
    refresher_.watch(updater, &Updater::objectWillChange);
    refresh();
}

void UpdatesCard::refresh() {
    const UpdateFramework* controller = updater_.controller();
    automatic_->showOn(controller && controller->automaticallyChecksForUpdates());
    check_->setEnabled(updater_.canCheck());
}

void UpdatesCard::setAutomatic(bool automatically) {
    if (UpdateFramework* controller = updater_.controller())
        controller->setAutomaticallyChecksForUpdates(automatically);
    Q_EMIT updater_.objectWillChange();
}

} // namespace quillon
