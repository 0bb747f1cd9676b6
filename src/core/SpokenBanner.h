#pragma once

#include "desktop/Banner.h"

#include <optional>
#include <string>

namespace quillon {

/// Passes banners on to the one on screen, where there is a screen, and remembers the last bad news
/// for a command.
class SpokenBanner : public Banner {
public:
    /// `onScreen` may be null.
    explicit SpokenBanner(Banner* onScreen) : onScreen_{onScreen} {}

    void show(BannerMessage message) override;

    /// Forgets the last banner.
    void forget() { problem_.reset(); }
    /// The text of the last banner, when that told of a problem.
    [[nodiscard]] const std::optional<std::string>& problem() const { return problem_; }

private:
    Banner* onScreen_;
    std::optional<std::string> problem_;
};

} // namespace quillon
