#include "analytics/Event.h"

namespace quillon {

Json Prop::toJson() const {
    return std::visit([](const auto& value) { return Json(value); }, value_);
}

std::optional<Prop> Prop::fromJson(const Json& value) {
    if (value.is_boolean()) return Prop{value.get<bool>()};
    if (const auto integer = asInteger(value)) return Prop{*integer};
    if (value.is_string()) return Prop{value.get<std::string>()};
    return std::nullopt;
}

Json Event::toJson() const {
    Json properties = Json::object();
    for (const auto& [key, value] : props) {
        properties[key] = value.toJson();
    }
    return {{"name", name}, {"at", at}, {"props", std::move(properties)}};
}

std::optional<Event> Event::fromJson(const Json& object) {
    const auto name = textMember(object, "name");
    const auto at = integerMember(object, "at");
    const Json* properties = objectMember(object, "props");
    if (!name || !at || properties == nullptr) return std::nullopt;
    Event event{.name = *name, .at = *at, .props = {}};
    for (const auto& [key, value] : properties->items()) {
        std::optional<Prop> prop = Prop::fromJson(value);
        if (!prop) return std::nullopt;
        event.props.emplace_back(key, std::move(*prop));
    }
    return event;
}

} // namespace quillon
