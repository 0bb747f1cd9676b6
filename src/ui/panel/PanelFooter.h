#pragma once

#include <QWidget>

namespace quillon {

class TextButton;

/// The row of small buttons at the bottom of the panel.
class PanelFooter : public QWidget {
    Q_OBJECT

public:
    explicit PanelFooter(QWidget* parent = nullptr);

    /// `available` says whether there is an updater, `canCheck` whether it can look for updates.
    void setUpdates(bool available, bool canCheck);

    /// The distance between the footer's edges and the texts of the first and the last button.
    [[nodiscard]] int inset() const;

Q_SIGNALS:
    void settings();
    void checkForUpdates();
    void quit();

private:
    TextButton* settings_;
    TextButton* updates_;
    TextButton* quit_;
};

} // namespace quillon
