#pragma once

#include "ui/accessibility/View.h"

namespace quillon {

class IconLabel;

/// The way into the setup. It stands in place of the send button.
class SetupCard : public View {
    Q_OBJECT

public:
    SetupCard();

    /// `keys` are the symbols of the shortcut's keys.
    void setShortcut(const QString& keys);

Q_SIGNALS:
    /// The user wants to set the program up.
    void startSetup();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    IconLabel* invitation_;
};

} // namespace quillon
