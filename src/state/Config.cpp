#include "state/Config.h"

#include "base/Json.h"

namespace quillon {

namespace {

/// Thrown while decoding, caught by decodeConfig.
struct Unusable {};

/// The value under the key; null pointer when it is missing or null.
const Json* present(const Json& object, std::string_view key) {
    const Json* value = member(object, key);
    return value != nullptr && !value->is_null() ? value : nullptr;
}

template <typename T>
T valueAs(const Json& value);

template <>
std::string valueAs(const Json& value) {
    if (!value.is_string()) throw Unusable{};
    return value.get<std::string>();
}

template <>
std::int64_t valueAs(const Json& value) {
    const auto integer = asInteger(value);
    if (!integer) throw Unusable{};
    return *integer;
}

template <>
bool valueAs(const Json& value) {
    if (!value.is_boolean()) throw Unusable{};
    return value.get<bool>();
}

template <typename T>
std::optional<T> optionalField(const Json& object, std::string_view key) {
    const Json* value = present(object, key);
    return value == nullptr ? std::nullopt : std::optional{valueAs<T>(*value)};
}

template <typename T>
T requiredField(const Json& object, std::string_view key) {
    const Json* value = present(object, key);
    if (value == nullptr) throw Unusable{};
    return valueAs<T>(*value);
}

Json topicToJson(const Topic& topic) {
    Json object{{"key", topic.key}, {"name", topic.name}, {"color", topic.color}};
    if (topic.threadId) object["threadId"] = *topic.threadId;
    return object;
}

Topic topicFromJson(const Json& object) {
    return {.key = requiredField<std::string>(object, "key"),
            .name = requiredField<std::string>(object, "name"),
            .color = requiredField<std::int64_t>(object, "color"),
            .threadId = optionalField<std::int64_t>(object, "threadId")};
}

std::vector<Topic> topicsFromJson(const Json& object) {
    const Json* array = present(object, "topics");
    if (array == nullptr) return Topic::defaults();
    if (!array->is_array()) throw Unusable{};
    std::vector<Topic> topics;
    for (const Json& element : *array) {
        topics.push_back(topicFromJson(element));
    }
    return topics;
}

Config configFromJson(const Json& object) {
    Config config;
    config.chatId = optionalField<std::int64_t>(object, "chatId");
    config.chatTitle = optionalField<std::string>(object, "chatTitle");
    config.botName = optionalField<std::string>(object, "botName");
    config.topics = topicsFromJson(object);
    config.shortcut =
        shortcutChoice(textMember(object, "shortcut").value_or("")).value_or(config.shortcut);
    config.playSound = optionalField<bool>(object, "playSound").value_or(config.playSound);
    config.showBanner = optionalField<bool>(object, "showBanner").value_or(config.showBanner);
    config.bannerPosition = bannerPosition(textMember(object, "bannerPosition").value_or(""))
                                .value_or(config.bannerPosition);
    return config;
}

} // namespace

std::string encodeConfig(const Config& config) {
    Json object = Json::object();
    if (config.chatId) object["chatId"] = *config.chatId;
    if (config.chatTitle) object["chatTitle"] = *config.chatTitle;
    if (config.botName) object["botName"] = *config.botName;
    Json topics = Json::array();
    for (const Topic& topic : config.topics) {
        topics.push_back(topicToJson(topic));
    }
    object["topics"] = std::move(topics);
    object["shortcut"] = rawValue(config.shortcut);
    object["playSound"] = config.playSound;
    object["showBanner"] = config.showBanner;
    object["bannerPosition"] = rawValue(config.bannerPosition);
    return writeJson(object);
}

std::optional<Config> decodeConfig(std::string_view bytes) {
    const std::optional<Json> object = parseJson(bytes);
    if (!object || !object->is_object()) return std::nullopt;
    try {
        return configFromJson(*object);
    } catch (Unusable) {
        return std::nullopt;
    }
}

} // namespace quillon
