#pragma once

#include "state/BannerPosition.h"

#include <string>

namespace quillon {

/// What a banner says, and how.
struct BannerMessage {
    std::string text;
    /// The name of the symbol beside the text.
    std::string symbol;
    /// Good news goes away sooner than bad news.
    bool ok = true;
    /// Stays until the next message.
    bool sticky = false;
    BannerPosition position = BannerPosition::top;

    bool operator==(const BannerMessage&) const = default;
};

/// Says what just happened, over whatever the user is doing. Sending depends on this much of the
/// banner and no more.
class Banner {
public:
    virtual ~Banner() = default;

    /// Shows the message in place of the one that shows now. Main thread only.
    virtual void show(BannerMessage message) = 0;
};

} // namespace quillon
