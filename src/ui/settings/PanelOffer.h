#pragma once

#include <QWidget>

namespace quillon {

/// The strip at the settings window's foot that leads to the panel, for desktops without a place
/// for the icon that otherwise opens it.
class PanelOffer : public QWidget {
    Q_OBJECT

public:
    explicit PanelOffer(QWidget* parent = nullptr);

Q_SIGNALS:
    void openPanel();
};

} // namespace quillon
