#include "ui/controls/Refresher.h"

#include <utility>

namespace quillon {

Refresher::Refresher(QObject* view, std::function<void()> refresh)
    : QObject{view},
      refresh_{std::move(refresh)} {}

void Refresher::schedule() {
    if (std::exchange(scheduled_, true)) return;
    const auto refreshUnlessDone = [this] {
        if (scheduled_) refreshNow();
    };
    QMetaObject::invokeMethod(this, refreshUnlessDone, Qt::QueuedConnection);
}

void Refresher::refreshNow() {
    scheduled_ = false; // first: a change that the refresh itself makes needs another refresh
    refresh_();
}

} // namespace quillon
