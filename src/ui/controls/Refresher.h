#pragma once

#include <QObject>

#include <functional>

namespace quillon {

/// Calls a view's refresh function once on the next turn of the event loop, however many changes
/// have been announced until then. So it is always called after the changes themselves.
class Refresher : public QObject {
    Q_OBJECT

public:
    /// Becomes a child of the view, which `refresh` may therefore use.
    Refresher(QObject* view, std::function<void()> refresh);

    /// Listens to a signal that announces changes, such as Store::objectWillChange.
    template <typename Sender>
    Refresher& watch(const Sender& sender, void (Sender::*announcement)()) {
        connect(&sender, announcement, this, &Refresher::schedule);
        return *this;
    }

    /// Schedules a refresh, as an announced change does.
    void schedule();
    /// Refreshes at once, which also answers the changes announced before.
    void refreshNow();

private:
    bool event(QEvent* event) override;

    std::function<void()> refresh_;
    bool scheduled_ = false;
};

} // namespace quillon
