#pragma once

#include <QElapsedTimer>
#include <QRect>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

namespace quillon {

class Compositor;
class PanelView;
class ScrollView;
class Workspace;

/// The small window of the panel. It opens beside the icon that was clicked, and closes on Escape,
/// when it loses the focus, and when the icon is clicked again. While a button of the pointer is
/// held down elsewhere it stays, for something may be dragged to it.
class PanelWindow : public QWidget {
    Q_OBJECT

public:
    using MakePanel = std::function<std::unique_ptr<PanelView>()>;

    /// Makes the panel itself when the window opens for the first time.
    PanelWindow(Compositor& compositor, Workspace& workspace, MakePanel makePanel);
    ~PanelWindow() override;

    /// Opens the window, or closes it if it is open. `icon` is the icon's place on the screen. With
    /// an empty one, when the place is unknown, the pointer's corner of the screen is taken.
    void toggle(const QRect& icon);
    void open(const QRect& icon);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void makePanel();
    /// Gives the window the panel's size, and keeps it where it opened.
    void place();
    /// Closes the window once no button of the pointer is held down any more.
    void closeUnlessPressed();

    Compositor& compositor_;
    Workspace& workspace_;
    MakePanel makePanel_;
    PanelView* panel_ = nullptr;
    ScrollView* scroll_ = nullptr;
    QRect icon_;
    QPoint pointer_;
    /// The time since the window closed because it lost the focus.
    QElapsedTimer sinceLostFocus_;
    /// Runs while the window has lost the focus and stays nevertheless.
    QTimer pressed_;
};

} // namespace quillon
