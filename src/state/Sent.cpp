#include "state/Sent.h"

#include "base/Json.h"
#include "base/Uuid.h"

#include <algorithm>

namespace quillon {

namespace {

/// 2001-01-01 00:00:00 UTC.
constexpr Date referenceDate{std::chrono::sys_days{std::chrono::year{2001} / 1 / 1}};

/// The UUID in its 36-character form, in either case; none for anything else.
std::optional<QUuid> uuidFromText(const std::string& text) {
    const QUuid id = QUuid::fromString(QString::fromStdString(text));
    const bool standardForm = QString::fromStdString(text).compare(
                                  id.toString(QUuid::WithoutBraces), Qt::CaseInsensitive) == 0;
    return standardForm ? std::optional{id} : std::nullopt;
}

Json sentToJson(const Sent& sent) {
    Json object{{"id", uuidText(sent.id)},
                {"symbol", sent.symbol},
                {"title", sent.title},
                {"topic", sent.topic},
                {"date", (sent.date - referenceDate).count()}};
    if (sent.error) object["error"] = *sent.error;
    return object;
}

std::optional<Sent> sentFromJson(const Json& object) {
    const auto id = uuidFromText(textMember(object, "id").value_or(""));
    const auto symbol = textMember(object, "symbol");
    const auto title = textMember(object, "title");
    const auto topic = textMember(object, "topic");
    const Json* date = member(object, "date");
    const Json* error = member(object, "error");
    const bool errorUsable = error == nullptr || error->is_null() || error->is_string();
    if (!id || !symbol || !title || !topic || date == nullptr || !date->is_number() ||
        !errorUsable) {
        return std::nullopt;
    }
    return Sent{.id = *id,
                .symbol = *symbol,
                .title = *title,
                .topic = *topic,
                .date = referenceDate + std::chrono::duration<double>{date->get<double>()},
                .error = textMember(object, "error")};
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
    const std::optional<Json> array = parseJson(bytes);
    if (!array || !array->is_array()) return {};
    std::vector<Sent> history;
    for (const Json& element : *array) {
        std::optional<Sent> sent = sentFromJson(element);
        if (!sent) return {};
        history.push_back(std::move(*sent));
    }
    return history;
}

} // namespace quillon
