#pragma once

#include <QObject>

#include <functional>

namespace quillon {

/// Calls a view's refresh() once on the next turn of the event loop, however many changes were
/// announced until then, and so always after the changes themselves.
class Refresher : public QObject {
    Q_OBJECT

public:
    /// Lives with the view, which `refresh` may therefore use.
    Refresher(QObject* view, std::function<void()> refresh);

    /// Listens to an announcement of changes, such as Store::objectWillChange.
    template <typename Sender>
    Refresher& watch(const Sender& sender, void (Sender::*announcement)()) {
        connect(&sender, announcement, this, &Refresher::schedule);
        return *this;
    }

    /// As if a change had been announced.
    void schedule();
    /// Refreshes at once; announcements from before have had their refresh with that.
    void refreshNow();

private:
    bool event(QEvent* event) override;

    std::function<void()> refresh_;
    bool scheduled_ = false;
};

} // namespace quillon
