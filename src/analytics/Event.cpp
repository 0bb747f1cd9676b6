#include "analytics/Event.h"

#include "base/JsonDecoding.h"

namespace quillon {

Json Event::toJson() const {
    return {{"name", name}, {"at", at}, {"props", props}};
}

Event Event::fromJson(const Json& object) {
    Event event{.name = requiredField<std::string>(object, "name"),
                .at = requiredField<std::int64_t>(object, "at"),
                .props = requiredMember(object, "props")};
    if (!event.props.is_object()) throw Undecodable{};
    for (const Json& value : event.props) {
        if (!value.is_boolean() && !value.is_string() && !asInteger(value)) throw Undecodable{};
    }
    return event;
}

} // namespace quillon
