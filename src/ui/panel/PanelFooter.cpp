#include "ui/panel/PanelFooter.h"

#include "ui/controls/Buttons.h"

#include <QHBoxLayout>

namespace quillon {

namespace {

constexpr ButtonLook look{.kind = ButtonKind::borderless, .style = Text::callout};

} // namespace

PanelFooter::PanelFooter(QWidget* parent)
    : QWidget{parent},
      settings_{new TextButton{tr("Settings…"), "gearshape.fill", look}},
      updates_{new TextButton{tr("Check for Updates…"), "arrow.down.circle", look}},
      quit_{new TextButton{tr("Quit"), "power", look}} {
    connect(settings_, &TextButton::clicked, this, &PanelFooter::settings);
    connect(updates_, &TextButton::clicked, this, &PanelFooter::checkForUpdates);
    connect(quit_, &TextButton::clicked, this, &PanelFooter::quit);

    auto* const row = new QHBoxLayout{this};
    row->setContentsMargins({});
    row->setSpacing(0);
    row->addWidget(settings_);
    row->addStretch();
    row->addWidget(updates_);
    row->addStretch();
    row->addWidget(quit_);
}

void PanelFooter::setUpdates(bool available, bool canCheck) {
    updates_->setVisible(available);
    updates_->setEnabled(canCheck);
}

int PanelFooter::inset() const {
    return settings_->inset();
}

} // namespace quillon
