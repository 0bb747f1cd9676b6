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

void printIndented(std::ostream& out, const std::string& text, std::string_view indent) {
    std::istringstream lines{text};
    for (std::string line; std::getline(lines, line);)
        out << indent << line << '\n';
}

void printText(std::ostream& out, const Json& message) {
    const auto text = message["text"].get<std::string>();
    const bool allPre = message["pre"].size() == 1 && message["pre"].front() == text;
    printIndented(out, text, allPre ? "      ┃ " : "      ");
}

void printFile(std::ostream& out, const Json& message) {
    out << "      [" << message["kind"].get<std::string>();
    if (message.contains("width"))
        out << ' ' << message["width"].get<int>() << "×" << message["height"].get<int>();
    out << "] " << message["filename"].get<std::string>() << ", "
        << message["size"].get<std::size_t>() << " bytes, " << message["mime"].get<std::string>();
    const auto sum = message["sha256"].get<std::string>();
    if (!sum.empty()) out << ", sha256 " << sum.substr(0, 12) << "…";
    out << '\n';
    if (message.contains("caption"))
        printIndented(out, message["caption"].get<std::string>(), "      ");
}

void printMessage(std::ostream& out, const Json& message) {
    const auto kind = message["kind"].get<std::string>();
    out << "    " << message["from"].get<std::string>() << " #"
        << message["id"].get<std::int64_t>();
    if (kind == "service") {
        const auto first = message["service"].begin();
        out << " — " << first.key();
        if (first->is_object() && first->contains("name"))
            out << ": " << (*first)["name"].get<std::string>();
        out << '\n';
        return;
    }
    out << '\n';
    if (kind == "text") {
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
        out << group["title"].get<std::string>() << " (" << group["type"].get<std::string>() << ' '
            << group["id"].get<std::int64_t>() << (group["is_forum"] ? ", topics on" : "") << ")\n";
        for (const Json& topic : group["topics"]) {
            if (topic["id"] == 0 && topic["messages"].empty()) continue;
            out << "  " << topic["name"].get<std::string>();
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
