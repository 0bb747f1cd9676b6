#pragma once

#include "state/Topic.h"
#include "telegram/Telegram.h"

#include <cstdint>
#include <vector>

namespace quillon {

/// Where a send goes. It is taken once, when the send starts, so that nothing that the user changes
/// meanwhile scatters the items.
struct Recipient {
    Telegram client;
    /// The group's id.
    std::int64_t chat;
    std::vector<Topic> topics;
};

} // namespace quillon
