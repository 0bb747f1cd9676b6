#include "sandbox/View.h"

#include <iomanip>
#include <sstream>

namespace quillon::sandbox {

namespace {

Json preBlocks(const FormattedText& formatted) {
    Json blocks = Json::array();
    for (const Entity& entity : formatted.entities) {
        if (entity.type == "pre")
            blocks.push_back(formatted.text.substr(entity.begin, entity.end - entity.begin));
    }
    return blocks;
}

Json messageView(const Message& message) {
    Json json{{"id", message.id},
              {"from", message.sender == World::userId ? "user" : "bot"},
              {"kind", message.kind}};
    if (message.kind == "service") {
        json["service"] = message.service;
        return json;
    }
    if (message.kind == "text") {
        json["text"] = message.text.text;
        json["pre"] = preBlocks(message.text);
        return json;
    }
    if (!message.text.text.empty()) json["caption"] = message.text.text;
    json["filename"] = message.filename;
    json["mime"] = message.mime;
    json["size"] = message.size;
    json["sha256"] = message.sha256.get();
    if (message.kind == "photo") {
        json["width"] = message.width;
        json["height"] = message.height;
    }
    return json;
}

Json topicView(const Chat& chat, const Topic& topic) {
    Json messages = Json::array();
    for (const Message& message : chat.messages) {
        if (message.topic == topic.id) messages.push_back(messageView(message));
    }
    Json json{{"id", topic.id}, {"name", topic.name}};
    if (topic.id != 0) json["icon_color"] = topic.iconColor;
    json["messages"] = std::move(messages);
    return json;
}

Json groupView(const Chat& chat) {
    Json topics = Json::array();
    topics.push_back(topicView(chat, Topic{0, "General", 0, 0, false}));
    for (const Topic& topic : chat.topics) {
        if (!topic.deleted) topics.push_back(topicView(chat, topic));
    }
    return {{"id", chat.id},
            {"title", chat.title},
            {"type", kindName(chat.kind)},
            {"is_forum", chat.forum},
            {"topics", std::move(topics)}};
}

const std::string& text(const Json& object, const char* key) {
    return object[key].get_ref<const std::string&>();
}

void printIndented(std::ostream& out, const std::string& paragraph, std::string_view indent) {
    std::istringstream lines{paragraph};
    for (std::string line; std::getline(lines, line);)
        out << indent << line << '\n';
}

void printText(std::ostream& out, const Json& message) {
    const bool allPre = message["pre"].size() == 1 && message["pre"].front() == message["text"];
    printIndented(out, text(message, "text"), allPre ? "      ┃ " : "      ");
}

void printFile(std::ostream& out, const Json& message) {
    out << "      [" << text(message, "kind");
    if (message.contains("width")) out << ' ' << message["width"] << "×" << message["height"];
    out << "] " << text(message, "filename") << ", " << message["size"] << " bytes, "
        << text(message, "mime");
    const std::string& sum = text(message, "sha256");
    if (!sum.empty()) out << ", sha256 " << sum.substr(0, 12) << "…";
    out << '\n';
    if (message.contains("caption")) printIndented(out, text(message, "caption"), "      ");
}

void printMessage(std::ostream& out, const Json& message) {
    out << "    " << text(message, "from") << " #" << message["id"];
    if (message["kind"] == "service") {
        const auto first = message["service"].begin();
        out << " — " << first.key();
        if (first->is_object() && first->contains("name")) out << ": " << text(*first, "name");
        out << '\n';
        return;
    }
    out << '\n';
    if (message["kind"] == "text") {
        printText(out, message);
    } else {
        printFile(out, message);
    }
}

} // namespace

Json viewJson(const World& world) {
    Json groups = Json::array();
    for (const Chat& chat : world.chats())
        groups.push_back(groupView(chat));
    return {{"groups", std::move(groups)}};
}

std::string viewText(const World& world) {
    std::ostringstream out;
    const Json view = viewJson(world);
    for (const Json& group : view["groups"]) {
        out << text(group, "title") << " (" << text(group, "type") << ' ' << group["id"]
            << (group["is_forum"] ? ", topics on" : "") << ")\n";
        for (const Json& topic : group["topics"]) {
            if (topic["id"] == 0 && topic["messages"].empty()) continue;
            out << "  " << text(topic, "name");
            if (topic.contains("icon_color")) {
                out << "  #" << std::hex << std::uppercase << std::setw(6) << std::setfill('0')
                    << topic["icon_color"].get<int>() << std::dec;
            }
            out << '\n';
            for (const Json& message : topic["messages"])
                printMessage(out, message);
        }
    }
    return out.str();
}

} // namespace quillon::sandbox
