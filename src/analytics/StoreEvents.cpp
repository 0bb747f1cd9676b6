#include "analytics/StoreEvents.h"

#include "analytics/Analytics.h"

#include <algorithm>
#include <array>
#include <map>

namespace quillon {

template <>
inline constexpr std::array<std::string_view, 4> rawValues<Store::SetupStep>{
    "bot_connected", "group_found", "topics_created", "topics_reused"};

namespace {

struct SettingEvent {
    std::string_view setting;
    bool (*changed)(const Config& old, const Config& now);
    Prop (*value)(const Config& now);
};

template <auto Field>
bool differs(const Config& old, const Config& now) {
    return old.*Field != now.*Field;
}

/// In the order in which the events are recorded.
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

std::string_view word(TopicKind kind) {
    return traits(kind).item;
}

TopicKind mostFrequentKind(const std::vector<SendInfo>& items) {
    std::map<TopicKind, int> counts;
    for (const SendInfo& item : items)
        ++counts[item.kind];
    return std::ranges::max_element(counts, {}, [](const auto& entry) { return entry.second; })
        ->first;
}

} // namespace

StoreEvents::StoreEvents(Store& store, Analytics& analytics)
    : store_{store},
      analytics_{analytics} {
    connect(&store, &Store::configChanged, this, &StoreEvents::trackSettings);
    connect(&store, &Store::sent, this, &StoreEvents::trackSend);
    connect(&store, &Store::setupStepDone, this, &StoreEvents::trackSetupStep);
    connect(&store, &Store::sendRefused, this, [this] {
        analytics_.track("send_failed", {{"reason", "not_set_up"}});
    });
    connect(&store, &Store::launchAtLoginChanged, this, [this](bool opens) {
        analytics_.track("settings_changed", {{"setting", "launch_at_login"}, {"value", opens}});
    });
}

void StoreEvents::trackSettings(const Config& old, const Config& now) {
    if (!store_.persists()) return;
    for (const SettingEvent& event : settingEvents) {
        if (!event.changed(old, now)) continue;
        analytics_.track("settings_changed",
                         {{"setting", event.setting}, {"value", event.value(now)}});
    }
}

void StoreEvents::trackSend(const std::vector<SendInfo>& items, Trigger via) {
    if (items.empty()) return;
    const bool ok =
        std::ranges::none_of(items, [](const SendInfo& item) { return item.reason.has_value(); });
    Props props{{"kind", word(mostFrequentKind(items))},
                {"ok", ok},
                {"via", rawValue(via)},
                {"count", static_cast<std::int64_t>(items.size())}};
    const std::int64_t largest = std::ranges::max(items, {}, &SendInfo::bytes).bytes;
    if (const auto bucket = Analytics::sizeBucket(largest)) props.emplace_back("size", *bucket);

    std::vector<std::pair<std::string_view, Props>> events;
    events.emplace_back("sent", std::move(props));
    for (const SendInfo& item : items) {
        if (!item.reason) continue;
        events.emplace_back("send_failed",
                            Props{{"kind", word(item.kind)}, {"reason", rawValue(*item.reason)}});
    }
    analytics_.track(std::move(events));
}

void StoreEvents::trackSetupStep(Store::SetupStep step) {
    analytics_.track("setup_step", {{"step", rawValue(step)}});
}

} // namespace quillon
