#include "state/Config.h"

#include "base/JsonDecoding.h"

namespace quillon {

namespace {

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

/// The word's value; the fallback for anything else, and where there is none.
template <HasRawValues Enum>
Enum choice(const Json& object, std::string_view key, Enum fallback) {
    return fromRawValue<Enum>(textMember(object, key).value_or("")).value_or(fallback);
}

Config configFromJson(const Json& object) {
    if (!object.is_object()) throw Undecodable{};
    Config config;
    config.chatId = optionalField<std::int64_t>(object, "chatId");
    config.chatTitle = optionalField<std::string>(object, "chatTitle");
    config.botName = optionalField<std::string>(object, "botName");
    if (const Json* topics = presentMember(object, "topics"))
        config.topics = decodedList(*topics, topicFromJson);
    config.shortcut = choice(object, "shortcut", config.shortcut);
    config.playSound = optionalField<bool>(object, "playSound").value_or(config.playSound);
    config.showBanner = optionalField<bool>(object, "showBanner").value_or(config.showBanner);
    config.bannerPosition = choice(object, "bannerPosition", config.bannerPosition);
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
    return decoded(bytes, configFromJson);
}

} // namespace quillon
