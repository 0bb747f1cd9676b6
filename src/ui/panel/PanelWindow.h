#pragma once

#include <QElapsedTimer>
#include <QRect>
#include <QWidget>

#include <functional>
#include <memory>

class QScrollArea;

namespace quillon {

class Compositor;
class PanelView;
class Workspace;

/// The small window that the panel is shown in. Opens beside the icon that was clicked and closes
/// by itself: on Escape, when it loses the focus, and when the icon is clicked again.
class PanelWindow : public QWidget {
    Q_OBJECT

public:
    using MakePanel = std::function<std::unique_ptr<PanelView>()>;

    /// The panel itself is made when it is first opened.
    PanelWindow(Compositor& compositor, Workspace& workspace, MakePanel makePanel);
    ~PanelWindow() override;

    /// Opens it, or closes it if it is open. `icon` is the icon's place on the screen, empty where
    /// the desktop does not tell: then the pointer's corner of the screen is taken.
    void toggle(const QRect& icon);
    void open(const QRect& icon);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void makePanel();
    /// Gives the window the panel's size, at the place that it opened at.
    void place();

    Compositor& compositor_;
    Workspace& workspace_;
    MakePanel makePanel_;
    PanelView* panel_ = nullptr;
    QScrollArea* scroll_ = nullptr;
    QRect icon_;
    QPoint pointer_;
    /// Since it was closed because something else took the focus.
    QElapsedTimer sinceLostFocus_;
};

} // namespace quillon
