#include "ui/controls/Refresher.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace quillon {
namespace {

constexpr auto due = QEvent::User;

} // namespace

Refresher::Refresher(QObject* view, std::function<void()> refresh)
    : QObject{view},
      refresh_{std::move(refresh)} {}

void Refresher::schedule() {
    if (std::exchange(scheduled_, true)) return;
    QCoreApplication::postEvent(this, new QEvent{due});
}

void Refresher::refreshNow() {
    scheduled_ = false;
    QCoreApplication::removePostedEvents(this, due);
    refresh_();
}

bool Refresher::event(QEvent* event) {
    if (event->type() != due) return QObject::event(event);
    scheduled_ = false; // first: a change that the refresh itself makes needs another refresh
    refresh_();
    return true;
}

} // namespace quillon
