#pragma once

#include "state/BannerPosition.h"
#include "state/ShortcutChoice.h"
#include "state/Topic.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// Everything the user sets, and everything setup learns about the user's group.
struct Config {
    /// The group; supergroup ids are negative and need 64 bits.
    std::optional<std::int64_t> chatId;
    std::optional<std::string> chatTitle;
    /// The bot's user name, without "@".
    std::optional<std::string> botName;
    std::vector<Topic> topics = Topic::defaults();
    ShortcutChoice shortcut = ShortcutChoice::ctrlOptV;
    bool playSound = true;
    bool showBanner = true;
    BannerPosition bannerPosition = BannerPosition::top;

    bool operator==(const Config&) const = default;
};

/// The content of config.json: one compact JSON object whose keys stand in the order of the fields;
/// absent optional fields are left out.
[[nodiscard]] std::string encodeConfig(const Config& config);

/// Reads config.json. A missing or null key takes its default, and so does a "shortcut" or
/// "bannerPosition" of an unknown value. Gives none when the bytes are no JSON object or another
/// key holds a value of the wrong type.
[[nodiscard]] std::optional<Config> decodeConfig(std::string_view bytes);

} // namespace quillon
