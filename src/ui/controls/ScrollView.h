#pragma once

#include <QScrollArea>

namespace quillon {

/// Scrolls a widget from top to bottom, in the program's own look and without a ground of its own.
/// What the keyboard is led to is scrolled into sight, from wherever the focus comes, and stays
/// there while the layout moves, until the user scrolls on.
class ScrollView : public QScrollArea {
    Q_OBJECT

public:
    explicit ScrollView(QWidget* content);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void takeFocusChange(const QWidget* now);
    void showFocus();

    /// Whether what has the focus is to stay in sight.
    bool following_ = false;
};

} // namespace quillon
