#include "EndToEndTest.h"

#include <array>
#include <map>

namespace quillon::test {

namespace {

/// The request as one text: method, parameters with their JSON types in alphabetical order, and the
/// file.
std::string described(const sandbox::RequestRecord& request) {
    std::map<std::string, std::string> parameters;
    for (const auto& parameter : request.parameters.values)
        parameters[parameter.name] = parameter.value.dump();
    std::string text = request.method;
    for (const auto& [name, value] : parameters)
        text += " " + name + "=" + value;
    for (const auto& upload : request.parameters.files) {
        text += " | " + upload.field + " " + upload.filename + " " + upload.mime + " " +
                std::to_string(upload.size);
    }
    return text;
}

} // namespace

// What Telegram gets to see of each kind of content, to the letter. In a form every value is text.
TEST_F(EndToEnd, SendsEachKindAsItsKindDemands) {
    setUp();
    const Json topics = Json::parse(quillon.run({"status", "--json"}).out)["topics"];
    const std::string chat = std::to_string(group);
    const auto thread = [&topics](int index) { return topics[index]["threadId"].dump(); };
    const auto form = [&](int topic) {
        return "chat_id=\"" + chat + "\" message_thread_id=\"" + thread(topic) + "\"";
    };
    const auto document = [&](int topic, const std::string& name) {
        return "sendDocument chat_id=\"" + chat +
               "\" disable_content_type_detection=\"true\" message_thread_id=\"" + thread(topic) +
               "\" | document " + name + " application/octet-stream 1";
    };

    clipboard.copyText("a < b & \"c\"");
    EXPECT_EQ(quillon.run({"send"}).code, 0);
    const std::vector<std::string> names{"a.mp4",  "b.MOV",  "c.m4v", "d.webm", "e.png", "f.JPG",
                                         "g.jpeg", "h.webp", "i.gif", "j.heic", "k.pdf", "l"};
    std::vector<std::string> uris;
    for (const std::string& name : names)
        uris.push_back("file://" + file(name, "x"));
    clipboard.copyFiles(uris);
    EXPECT_EQ(quillon.run({"send"}).code, 0);

    std::vector<std::string> expected{
        "sendMessage chat_id=" + chat + " message_thread_id=" + thread(0) +
        R"( parse_mode="HTML" text="<pre>a &lt; b &amp; \"c\"</pre>")"};
    constexpr std::array topicOf{3, 3, 3, 3, 1, 1, 1, 1, 1, 1, 2, 2};
    for (std::size_t index = 0; index < names.size(); ++index)
        expected.push_back(document(topicOf.at(index), names[index]));
    std::vector<std::string> seen;
    for (const auto& request : phone.requests())
        seen.push_back(described(request));
    EXPECT_EQ(seen, expected);

    // The Bot API takes a photo of this size still, and anything larger as a document.
    for (const std::size_t size : {std::size_t{9'999'999}, std::size_t{10'000'000}}) {
        phone.clearRequests();
        QByteArray picture = converted("png");
        picture.append(static_cast<qsizetype>(size) - picture.size(), '\0');
        clipboard.copy("image/png", picture);
        EXPECT_EQ(quillon.run({"send"}).code, 0);
        const std::string kind = size < 10'000'000 ? "photo" : "document";
        EXPECT_THAT(described(phone.requests().at(0)),
                    testing::MatchesRegex(
                        (size < 10'000'000 ? "sendPhoto " : "sendDocument ") + form(1) + " . " +
                        kind + " clipboard-[0-9]{10}\\.png image/png " + std::to_string(size)));
    }
}

} // namespace quillon::test
