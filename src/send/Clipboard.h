#pragma once

#include "send/ClipContent.h"

#include <QCoroTask>

#include <string>
#include <vector>

namespace quillon {

class Pasteboard;

/// Turns whatever was last copied into one ClipContent, and that into one line for people.
namespace Clipboard {

/// Classifies the clipboard as it is now: files win over an image, an image over text, and blank
/// text counts as nothing. Never fails: what cannot be read counts as absent. The pasteboard must
/// outlive the task.
[[nodiscard]] QCoro::Task<ClipContent> read(Pasteboard& pasteboard);

struct Summary {
    std::string symbol; ///< the name of the symbol that stands for the content
    std::string line;   ///< valid UTF-8, of any length

    bool operator==(const Summary&) const = default;
};

/// What sending the content sends, in its order; empty for ClipEmpty.
[[nodiscard]] std::vector<SendItem> items(ClipContent content);

/// Depends on its argument alone; of an image it reads the header for the size in pixels.
[[nodiscard]] Summary summary(const ClipContent& content);

} // namespace Clipboard

} // namespace quillon
