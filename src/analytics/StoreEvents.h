#pragma once

#include "state/Store.h"

namespace quillon {

class Analytics;

/// Records usage events of what the store announces. Store and analytics outlive it.
class StoreEvents : public QObject {
public:
    StoreEvents(Store& store, Analytics& analytics);

private:
    /// Records one event for each setting that has changed; never group, bot or topics.
    void trackSettings(const Config& old, const Config& now);
    /// Records one event for the send, and one for each item that failed.
    void trackSend(const std::vector<SendInfo>& items, Trigger via);
    void trackSetupStep(Store::SetupStep step);

    Store& store_;
    Analytics& analytics_;
};

} // namespace quillon
