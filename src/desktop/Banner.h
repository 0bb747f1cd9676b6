#pragma once

#include <string>

namespace quillon {

/// Says what just happened, over whatever the user is doing. What sends depends on this much of the
/// banner and no more.
class Banner {
public:
    virtual ~Banner() = default;

    /// Shows the text and the symbol of that name, replacing what is shown now. It goes away by
    /// itself, sooner when the news is good (`ok`); when `sticky` only the next banner ends it.
    /// Main thread only.
    virtual void show(std::string text, std::string symbol, bool ok, bool sticky) = 0;
};

} // namespace quillon
