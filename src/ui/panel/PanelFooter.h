#pragma once

#include <QWidget>

namespace quillon {

class TextButton;

/// The row of small buttons at the panel's foot.
class PanelFooter : public QWidget {
    Q_OBJECT

public:
    explicit PanelFooter(QWidget* parent = nullptr);

    /// `available`: there is an updater at all; `canCheck`: it can look for updates now.
    void setUpdates(bool available, bool canCheck);

    /// How far the text of the first and the last button is from the footer's edges.
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
