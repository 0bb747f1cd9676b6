#include "ui/controls/ScrollView.h"

#include "ui/controls/ScrollBar.h"
#include "ui/theme/Theme.h"

#include <QApplication>
#include <QEvent>

namespace quillon {

ScrollView::ScrollView(QWidget* content) {
    setFrameShape(QFrame::NoFrame);
    useOwnScrollBars(*this);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setWidget(content);
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    // QScrollArea itself follows the Tab key only, and only from one of its controls to another.
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* /*before*/, QWidget* now) { takeFocusChange(now); });
    connect(verticalScrollBar(), &QScrollBar::actionTriggered, this,
            [this] { following_ = false; });
}

void ScrollView::takeFocusChange(const QWidget* now) {
    if (!now || !widget()->isAncestorOf(now)) return;
    // What is clicked is in sight enough to be clicked, and must not move away from the pointer.
    following_ = QApplication::mouseButtons() == Qt::NoButton;
    showFocus();
}

void ScrollView::showFocus() {
    QWidget* const focused = window()->focusWidget();
    if (following_ && focused && widget()->isAncestorOf(focused))
        ensureWidgetVisible(focused, 0, Space::large);
}

bool ScrollView::eventFilter(QObject* watched, QEvent* event) {
    const bool done = QScrollArea::eventFilter(watched, event);
    // After QScrollArea has taken the new size.
    const bool moved = event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest;
    if (watched == widget() && moved) {
        QMetaObject::invokeMethod(
            this, [this] { showFocus(); }, Qt::QueuedConnection);
    }
    return done;
}

void ScrollView::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    showFocus();
}

} // namespace quillon
