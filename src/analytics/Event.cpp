#include "analytics/Event.h"

#include "base/JsonDecoding.h"

namespace quillon {

Json Prop::toJson() const {
    return std::visit([](const auto& value) { return Json(value); }, value_);
}

Prop Prop::fromJson(const Json& value) {
    if (value.is_boolean()) return value.get<bool>();
    if (value.is_string()) return value.get<std::string>();
    return decodedAs<std::int64_t>(value);
}

Json Event::toJson() const {
    Json properties = Json::object();
    for (const auto& [key, value] : props) {
        properties[key] = value.toJson();
    }
    return {{"name", name}, {"at", at}, {"props", std::move(properties)}};
}

Event Event::fromJson(const Json& object) {
    Event event{.name = requiredField<std::string>(object, "name"),
                .at = requiredField<std::int64_t>(object, "at"),
                .props = {}};
    const Json& properties = requiredMember(object, "props");
    if (!properties.is_object()) throw Undecodable{};
    for (const auto& [key, value] : properties.items())
        event.props.emplace_back(key, Prop::fromJson(value));
    return event;
}

} // namespace quillon
