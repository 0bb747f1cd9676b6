#pragma once

#include "state/Store.h"

namespace quillon {

class Analytics;

/// Turns what the store announces into usage events, for as long as it lives. It lives no longer
/// than either.
class StoreEvents : public QObject {
public:
    StoreEvents(Store& store, Analytics& analytics);

private:
    /// One event for each setting that has changed. Group, bot and topics are nobody's business.
    void trackSettings(const Config& old, const Config& now);
    /// One event for the send, and one for each item that failed.
    void trackSend(const std::vector<SendInfo>& items, Trigger via);
    void trackSetupStep(Store::SetupStep step);

    Store& store_;
    Analytics& analytics_;
};

} // namespace quillon
