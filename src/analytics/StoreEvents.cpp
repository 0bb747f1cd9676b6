// The store's hooks that turn changed settings and finished sends into usage events.
#include "analytics/Analytics.h"
#include "state/Store.h"

#include <algorithm>
#include <array>
#include <map>

namespace quillon {

namespace {

struct SettingEvent {
    std::string_view setting;
    bool (*changed)(const Config& old, const Config& current);
    Prop (*value)(const Config& current);
};

template <auto Field>
bool differs(const Config& old, const Config& current) {
    return old.*Field != current.*Field;
}

/// In the order the events are recorded. Group, bot and topics are nobody's business.
const std::array settingEvents{
    SettingEvent{"shortcut", differs<&Config::shortcut>,
                 [](const Config& config) { return Prop{keysText(config.shortcut)}; }},
    SettingEvent{"sound", differs<&Config::playSound>,
                 [](const Config& config) { return Prop{config.playSound}; }},
    SettingEvent{"banner", differs<&Config::showBanner>,
                 [](const Config& config) { return Prop{config.showBanner}; }},
    SettingEvent{"banner_position", differs<&Config::bannerPosition>,
                 [](const Config& config) { return Prop{rawValue(config.bannerPosition)}; }},
};

std::string mostFrequentKind(const std::vector<Store::SendInfo>& items) {
    std::map<std::string, int> counts;
    for (const Store::SendInfo& item : items) {
        ++counts[item.kind];
    }
    return std::ranges::max_element(counts, {}, [](const auto& entry) { return entry.second; })
        ->first;
}

} // namespace

void Store::trackSettings(const Config& old) {
    if (!persist_) return;
    for (const SettingEvent& event : settingEvents) {
        if (!event.changed(old, config_)) continue;
        analytics_.track("settings_changed",
                         {{"setting", event.setting}, {"value", event.value(config_)}});
    }
}

void Store::trackLaunchAtLogin(bool opens) {
    analytics_.track("settings_changed", {{"setting", "launch_at_login"}, {"value", opens}});
}

void Store::trackSend(const std::vector<SendInfo>& items, const std::string& via) {
    if (items.empty()) return;
    const bool ok =
        std::ranges::none_of(items, [](const SendInfo& item) { return item.reason.has_value(); });
    Props props{{"kind", mostFrequentKind(items)},
                {"ok", ok},
                {"via", via},
                {"count", static_cast<std::int64_t>(items.size())}};
    const std::int64_t largest = std::ranges::max(items, {}, &SendInfo::bytes).bytes;
    if (const auto bucket = Analytics::sizeBucket(largest)) props.emplace_back("size", *bucket);
    analytics_.track("sent", std::move(props));

    for (const SendInfo& item : items) {
        if (!item.reason) continue;
        analytics_.track("send_failed", {{"kind", item.kind}, {"reason", *item.reason}});
    }
}

} // namespace quillon
