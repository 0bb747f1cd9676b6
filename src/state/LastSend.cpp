#include "state/LastSend.h"

#include "base/JsonDecoding.h"
#include "base/Uuid.h"

#include <algorithm>
#include <numeric>

namespace quillon {

namespace {

std::vector<Json> asJson(const std::vector<QUuid>& ids) {
    const auto count = static_cast<std::ptrdiff_t>(std::min(ids.size(), historyLimit));
    std::vector<Json> list;
    std::transform(ids.begin(), ids.begin() + count, std::back_inserter(list), uuidText);
    return list;
}

std::int64_t messageFromJson(const Json& value) {
    const auto id = decodedAs<std::int64_t>(value);
    if (id <= 0) throw Undecodable{};
    return id;
}

ItemMessages itemFromJson(const Json& object) {
    ItemMessages item{.entry = decodedUuid(requiredMember(object, "entry")),
                      .ids = decodedList(requiredMember(object, "messages"), messageFromJson)};
    if (item.ids.empty()) throw Undecodable{};
    return item;
}

UndoRecord recordFromJson(const Json& object) {
    UndoRecord record{.last = {.chat = requiredField<std::int64_t>(object, "chat"),
                               .date = Date{Date::duration{requiredField<double>(object, "date")}},
                               .items = decodedList(requiredMember(object, "items"), itemFromJson)},
                      .takenBack = decodedList(requiredMember(object, "takenBack"), decodedUuid)};
    if (record.last.count() > lastSendLimit || record.takenBack.size() > historyLimit)
        throw Undecodable{};
    return record;
}

} // namespace

std::size_t LastSend::count() const {
    return std::accumulate(
        items.begin(), items.end(), std::size_t{0},
        [](std::size_t sum, const ItemMessages& item) { return sum + item.ids.size(); });
}

std::size_t LastSend::count(const QUuid& entry) const {
    const auto found = std::ranges::find(items, entry, &ItemMessages::entry);
    return found == items.end() ? 0 : found->ids.size();
}

void LastSend::add(const QUuid& entry, std::int64_t message, Date now) {
    date = now;
    if (items.empty() || items.back().entry != entry) items.push_back({entry, {}});
    items.back().ids.push_back(message);
    if (count() <= lastSendLimit) return;
    const std::int64_t oldest = items.front().ids.front();
    remove({&oldest, 1});
}

std::vector<QUuid> LastSend::remove(std::span<const std::int64_t> ids) {
    std::vector<QUuid> emptied;
    for (ItemMessages& item : items) {
        std::erase_if(item.ids,
                      [&](std::int64_t id) { return std::ranges::find(ids, id) != ids.end(); });
        if (item.ids.empty()) emptied.push_back(item.entry);
    }
    std::erase_if(items, [](const ItemMessages& item) { return item.ids.empty(); });
    return emptied;
}

std::string encodeUndo(const UndoRecord& record) {
    Json items = Json::array();
    for (const ItemMessages& item : record.last.items)
        items.push_back({{"entry", uuidText(item.entry)}, {"messages", item.ids}});
    return writeJson({{"chat", record.last.chat},
                      {"date", record.last.date.time_since_epoch().count()},
                      {"items", std::move(items)},
                      {"takenBack", asJson(record.takenBack)}});
}

UndoRecord decodeUndo(std::string_view bytes) {
    return decoded(bytes, recordFromJson).value_or(UndoRecord{});
}

} // namespace quillon
