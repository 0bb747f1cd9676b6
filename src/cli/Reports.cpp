#include "cli/Reports.h"

#include "base/Json.h"
#include "base/Translate.h"
#include "base/Uuid.h"
#include "cli/Terminal.h"
#include "state/ShownKeys.h"
#include "state/Store.h"

#include <QDateTime>

#include <algorithm>
#include <utility>

namespace quillon {

template <>
inline constexpr std::array<std::string_view, 2> rawValues<DesktopWays::Session>{"x11", "wayland"};
template <>
inline constexpr std::array<std::string_view, 2> rawValues<DesktopWays::Banner>{"window", "layer"};
template <>
inline constexpr std::array<std::string_view, 4> rawValues<ClipboardWay>{
    "ext-data-control", "wlr-data-control", "x11", "none"};
template <>
inline constexpr std::array<std::string_view, 5> rawValues<ShortcutWay>{
    "x11", "portal", "gnome-binding", "compositor-line", "none"};
template <>
inline constexpr std::array<std::string_view, 6> rawValues<HotKeyState::Kind>{
    "asking", "bound", "unassigned", "taken", "refused", "unavailable"};

namespace {

QDateTime dateTime(Date date) {
    const auto sinceEpoch = std::chrono::duration_cast<std::chrono::duration<double, std::milli>>(
        date.time_since_epoch());
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(sinceEpoch.count()));
}

using Rows = std::vector<std::pair<std::string, std::string>>;

/// A line for each row, with the values below each other, however long the names are.
std::string inLines(Rows rows) {
    std::size_t widest = 0;
    for (auto& [name, value] : rows) {
        name = filled(translate("Status", "%1:"), {name});
        widest = std::max(widest, Terminal::cells(name));
    }
    std::string text;
    for (const auto& [name, value] : rows) {
        const std::string space(widest - Terminal::cells(name) + 1, ' ');
        text += Terminal::harmless(name + space + value) + "\n";
    }
    return text;
}

/// The bot's row: without the keyring's answer, what the settings remember.
std::string botText(const Store& store) {
    const bool known = store.keyring() != Store::KeyringState::silent;
    const auto& name = store.config().botName;
    if (store.tokenSaved()) return name.value_or(translate("Status", "connected"));
    return known || !name ? translate("Status", "not connected") : *name;
}

/// The texts with tabs between, each a column: a tab in one of them would begin another.
std::string columns(std::vector<std::string> texts) {
    std::string line;
    for (std::string& text : texts) {
        std::ranges::replace(text, '\t', ' ');
        line += (line.empty() ? "" : "\t") + text;
    }
    return line;
}

Json desktopJson(const DesktopWays& ways) {
    return {{"session", rawValue(ways.session)},
            {"clipboard", rawValue(ways.clipboard)},
            {"banner", rawValue(ways.banner)}};
}

Json shortcutJson(const HotKeyState& shortcut) {
    Json object{{"way", rawValue(shortcut.way)}, {"state", rawValue(shortcut.kind)}};
    if (!shortcut.trigger.empty()) object["trigger"] = shortcut.trigger;
    if (!shortcut.command.empty()) object["command"] = shortcut.command;
    return object;
}

std::vector<std::string> sendColumns(const Sent& entry) {
    const char* const state = entry.takenBack ? "undone" : entry.error ? "failed" : "sent";
    return {state, entry.topic, entry.title};
}

} // namespace

bool canSend(const Store& store) {
    return store.isReady() && !store.keyringProblem();
}

std::string sendLine(const Sent& entry) {
    return columns(sendColumns(entry));
}

std::string statusText(const Store& store) {
    const Config& config = store.config();
    Rows rows{{translate("Status", "Bot"), botText(store)}};
    rows.emplace_back(translate("Status", "Group"),
                      config.chatId ? config.chatTitle.value_or(translate("Status", "your group"))
                                    : translate("Status", "not found yet"));
    for (const Topic& topic : config.topics) {
        const std::string shown =
            topic.threadId ? "%1" : translate("Status", "%1 (not created yet)");
        rows.emplace_back(translate("Status", "Topic"), filled(shown, {topic.name}));
    }
    rows.emplace_back(translate("Status", "Shortcut"), shownKeysText(config.shortcut));
    if (const auto problem = store.keyringProblem())
        rows.emplace_back(translate("Status", "Keyring"), *problem);
    rows.emplace_back(translate("Status", "Ready"),
                      canSend(store) ? translate("Status", "yes") : translate("Status", "no"));
    return inLines(std::move(rows));
}

std::string statusJson(const Store& store, const DesktopWays& ways, bool registered) {
    const Config& config = store.config();
    Json object{{"ready", canSend(store)}, {"tokenSaved", store.tokenSaved()}};
    if (config.botName) object["botName"] = *config.botName;
    if (config.chatId) object["chatId"] = *config.chatId;
    if (config.chatTitle) object["chatTitle"] = *config.chatTitle;
    object["topics"] = Json::array();
    for (const Topic& topic : config.topics) {
        Json entry{{"key", topic.key}, {"name", topic.name}};
        if (topic.threadId) entry["threadId"] = *topic.threadId;
        object["topics"].push_back(std::move(entry));
    }
    object["shortcut"] = rawValue(config.shortcut);
    object["desktop"] = desktopJson(ways);
    if (registered) object["desktop"]["shortcut"] = shortcutJson(store.shortcut());
    return writeJson(object) + "\n";
}

std::string historyText(const std::vector<Sent>& history) {
    std::string text;
    for (const Sent& entry : history) {
        const QString when = dateTime(entry.date).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
        std::vector<std::string> line = sendColumns(entry);
        line.insert(line.begin(), when.toStdString());
        if (entry.error) line.push_back(*entry.error);
        text += Terminal::harmless(columns(std::move(line))) + "\n";
    }
    return text;
}

std::string historyJson(const std::vector<Sent>& history) {
    Json array = Json::array();
    for (const Sent& entry : history) {
        Json object{
            {"id", uuidText(entry.id)},
            {"date", dateTime(entry.date).toUTC().toString(Qt::ISODateWithMs).toStdString()},
            {"topic", entry.topic},
            {"title", entry.title}};
        if (entry.error) object["error"] = *entry.error;
        if (entry.takenBack) object["takenBack"] = true;
        array.push_back(std::move(object));
    }
    return writeJson(array) + "\n";
}

} // namespace quillon
