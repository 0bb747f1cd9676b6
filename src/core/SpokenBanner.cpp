#include "core/SpokenBanner.h"

namespace quillon {

void SpokenBanner::show(std::string text, std::string symbol, bool ok, bool sticky) {
    problem_ = ok ? std::nullopt : std::optional{text};
    if (onScreen_ != nullptr) onScreen_->show(std::move(text), std::move(symbol), ok, sticky);
}

} // namespace quillon
