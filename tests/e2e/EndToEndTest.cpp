#include "EndToEndTest.h"

#include <fstream>

namespace quillon::test {

std::string EndToEnd::file(const std::string& name, const std::string& content) const {
    const auto path = std::filesystem::path{documents.path().toStdString()} / name;
    std::ofstream{path, std::ios::binary} << content;
    return path.native();
}

std::vector<Json> EndToEnd::messages(const std::string& topic) const {
    const Json view = phone.view();
    std::vector<Json> messages;
    for (const Json& candidate : view["groups"][0]["topics"]) {
        if (candidate["name"] != topic) continue;
        for (const Json& message : candidate["messages"]) {
            if (message["kind"] != "service") messages.push_back(message);
        }
    }
    return messages;
}

} // namespace quillon::test
