#pragma once

#include <QWidget>

namespace quillon {

/// The strip at the bottom of the settings window with a button that opens the panel, for desktops
/// without a place for the icon that usually opens it.
class PanelOffer : public QWidget {
    Q_OBJECT

public:
    explicit PanelOffer(QWidget* parent = nullptr);

Q_SIGNALS:
    void openPanel();
};

} // namespace quillon
