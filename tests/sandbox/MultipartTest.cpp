#include "sandbox/Multipart.h"

#include <gtest/gtest.h>

namespace quillon::sandbox {

namespace {

const std::string name = "Content-Disposition: form-data; name=\"n\"";

std::string whole(const std::string& header, const std::string& content) {
    return "--b\r\n" + header + "\r\n\r\n" + content + "\r\n--b--\r\n";
}

} // namespace

TEST(Multipart, refusesMalformedBodies) {
    const std::vector<std::string> bodies{
        "",
        "stray\r\n" + whole(name, "x"),
        whole(name, "x") + "stray",
        "--b\r\n" + name + "\r\n\r\nx\r\n",
        whole("Content-Type: text/plain", "x"),
        whole("Content-Disposition: form-data; name=\"\"", "x"),
        whole(name + "; name=\"m\"", "x"),
        whole(name + "\r\n" + name, "x"),
        whole(name + R"(; filename="a"b")", "x"),
        whole(name + "; filename=\"a", "x"),
        whole(name + "; filename=\"a\r\nX-Injected: b\"", "x"),
        whole(name + "; filename=\"a" + std::string{'\0'} + "\"", "x"),
        whole(name + "\r\nno colon", "x"),
    };
    for (const std::string& body : bodies)
        EXPECT_THROW(parseMultipart(body, "b"), MultipartError) << body;
}

} // namespace quillon::sandbox
