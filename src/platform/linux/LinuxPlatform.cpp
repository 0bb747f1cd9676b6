#include "platform/linux/LinuxPlatform.h"

#include "platform/linux/Environment.h"

namespace quillon {

namespace {

constexpr const char* telegramsBotApi = "https://api.telegram.org";

std::optional<std::string> otherBotApi() {
    auto api = environment("QUILLON_BOT_API");
    while (api && api->ends_with('/'))
        api->pop_back();
    return api;
}

CurlTransportOptions transportOptions() {
    CurlTransportOptions options;
    options.allowHttp = otherBotApi().has_value();
    return options;
}

/// Where freedesktop.org puts data of users; a relative path counts as none there.
std::filesystem::path dataFolder() {
    const std::filesystem::path data = environment("XDG_DATA_HOME").value_or("");
    if (data.is_absolute()) return data / "Quillon";
    return std::filesystem::path{environment("HOME").value_or("/")} / ".local/share/Quillon";
}

} // namespace

LinuxPlatform::LinuxPlatform(std::unique_ptr<Pasteboard> pasteboard)
    : http_{transportOptions()},
      pasteboard_{std::move(pasteboard)},
      platform_{clock_,   files_,  http_,        *pasteboard_,
                secrets_, sounds_, dataFolder(), otherBotApi().value_or(telegramsBotApi)} {}

} // namespace quillon
