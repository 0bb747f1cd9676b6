#pragma once

#include "desktop/Banner.h"

#include <optional>
#include <string>

namespace quillon {

/// Passes each message on to the banner on screen, if there is one, and remembers the last bad
/// news, which a command prints.
class SpokenBanner : public Banner {
public:
    /// `onScreen` is null where no banner is shown.
    explicit SpokenBanner(Banner* onScreen) : onScreen_{onScreen} {}

    void show(BannerMessage message) override;

    /// Forgets the last message.
    void forget() { problem_.reset(); }
    /// The text of the last message if that was bad news.
    [[nodiscard]] const std::optional<std::string>& problem() const { return problem_; }

private:
    Banner* onScreen_;
    std::optional<std::string> problem_;
};

} // namespace quillon
