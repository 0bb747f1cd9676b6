#include "sandbox/Multipart.h"

#include <gtest/gtest.h>

namespace quillon::sandbox {

namespace {

const std::string name = "Content-Disposition: form-data; name=\"n\"";

std::string whole(const std::string& header, const std::string& content) {
    return "--b\r\n" + header + "\r\n\r\n" + content + "\r\n--b--\r\n";
}

} // namespace

TEST(Multipart, keepsNamesAndBytesAsTheyCame) {
    const std::string bytes = std::string{"\0\r\n--a\r\n\r\n--", 12} + "\xFF\r";
    const std::string body =
        "--b\r\n" + name + "\r\n\r\n\r\n--b\r\n" + name +
        "; filename=\"a\\ é\xFF'.txt\"\r\nContent-Type: text/plain; charset=x" + "\r\n\r\n" +
        bytes + "\r\n--b--";
    const auto parts = parseMultipart(body, "b");
    ASSERT_EQ(parts.size(), 2);
    EXPECT_EQ(parts[0].bytes, "");
    EXPECT_FALSE(parts[0].filename);
    EXPECT_EQ(parts[1].filename, "a\\ é\xFF'.txt");
    EXPECT_EQ(parts[1].mime, "text/plain; charset=x");
    EXPECT_EQ(parts[1].bytes, bytes);
}

TEST(Multipart, refusesMalformedBodies) {
    const std::vector<std::string> bodies{
        "",
        "--b--\r\n",
        "--b\r\n",
        "stray\r\n" + whole(name, "x"),
        whole(name, "x") + "stray",
        "--b\r\n" + name + "\r\n\r\nx\r\n",
        "--b\r\n" + name + "\r\n\r\nx\r\n--b",
        "--b\r\n" + name + "\r\n\r\nx\r\n--bb--\r\n",
        "--b\n" + name + "\n\nx\n--b--\n",
        "--b\r\n" + name + "\r\n--b--\r\n",
        "--b\r\n" + name + "\r\n\r\n--b--\r\n",
        whole("Content-Type: text/plain", "x"),
        whole("Content-Disposition: form-data", "x"),
        whole("Content-Disposition: form-data; name=\"\"", "x"),
        whole("Content-Disposition: attachment; name=\"n\"", "x"),
        whole(name + "; name=\"m\"", "x"),
        whole(name + "\r\n" + name, "x"),
        whole(name + " stray", "x"),
        whole(name + R"(; filename="a"b")", "x"),
        whole(name + "; filename=\"a", "x"),
        whole(name + "; filename=\"a\r\nX-Injected: b\"", "x"),
        whole(name + "; filename=\"a\nb\"", "x"),
        whole(name + "; filename=\"a" + std::string{'\0'} + "\"", "x"),
        whole(name + "; filename*=utf-8''a", "x"),
        whole(name + "\r\n folded", "x"),
        whole(name + "\r\nno colon", "x"),
        whole(name + "\r\nContent-Type: png", "x"),
    };
    for (const std::string& body : bodies)
        EXPECT_THROW(parseMultipart(body, "b"), MultipartError) << body;
}

TEST(Multipart, readsTheBoundaryFromTheHeader) {
    EXPECT_EQ(boundaryOf("Multipart/Form-Data; charset=x; boundary=qln-1"), "qln-1");
    EXPECT_EQ(boundaryOf("multipart/form-data; boundary=\"a b:c\""), "a b:c");
    for (const std::string header :
         {"multipart/form-data",
          "multipart/form-data; boundary=", "multipart/form-data; boundary=\"a \"",
          "multipart/mixed; boundary=b", "multipart/form-data; boundary=a@b"})
        EXPECT_THROW(boundaryOf(header), MultipartError) << header;
    EXPECT_THROW(boundaryOf("multipart/form-data; boundary=" + std::string(71, 'b')),
                 MultipartError);
}

} // namespace quillon::sandbox
