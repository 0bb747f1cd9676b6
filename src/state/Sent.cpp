#include "state/Sent.h"

#include "base/JsonDecoding.h"
#include "base/Uuid.h"

#include <algorithm>

namespace quillon {

namespace {

/// 2001-01-01 00:00:00 UTC.
constexpr Date referenceDate{std::chrono::sys_days{std::chrono::year{2001} / 1 / 1}};

Json sentToJson(const Sent& sent) {
    Json object{{"id", uuidText(sent.id)},
                {"symbol", sent.symbol},
                {"title", sent.title},
                {"topic", sent.topic},
                {"date", (sent.date - referenceDate).count()}};
    if (sent.error) object["error"] = *sent.error;
    return object;
}

/// The moment so many seconds after the reference date; the nearest that has a year of four digits,
/// which all calendars can show, and which fits into milliseconds.
Date dateFromSeconds(double seconds) {
    using std::chrono::sys_days, std::chrono::year;
    constexpr Date first{sys_days{year{1} / 1 / 1}};
    constexpr Date last{sys_days{year{9999} / 12 / 31}};
    return std::clamp(referenceDate + std::chrono::duration<double>{seconds}, first, last);
}

Sent sentFromJson(const Json& object) {
    return {.id = decodedUuid(requiredMember(object, "id")),
            .symbol = requiredField<std::string>(object, "symbol"),
            .title = requiredField<std::string>(object, "title"),
            .topic = requiredField<std::string>(object, "topic"),
            .date = dateFromSeconds(requiredField<double>(object, "date")),
            .error = optionalField<std::string>(object, "error")};
}

std::vector<Sent> historyFromJson(const Json& array) {
    return decodedList(array, sentFromJson);
}

} // namespace

std::string encodeHistory(const std::vector<Sent>& history) {
    Json array = Json::array();
    for (std::size_t index = 0; index < std::min(history.size(), historyLimit); ++index) {
        array.push_back(sentToJson(history[index]));
    }
    return writeJson(array);
}

std::vector<Sent> decodeHistory(std::string_view bytes) {
    return decoded(bytes, historyFromJson).value_or(std::vector<Sent>{});
}

} // namespace quillon
