#include "core/SpokenBanner.h"

namespace quillon {

void SpokenBanner::show(BannerMessage message) {
    problem_ = message.ok ? std::nullopt : std::optional{message.text};
    if (onScreen_) onScreen_->show(std::move(message));
}

} // namespace quillon
