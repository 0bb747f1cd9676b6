#include "telegram/Multipart.h"

#include <gtest/gtest.h>

using namespace quillon;

namespace {

std::string whole(const MultipartBody& body) {
    std::string bytes;
    for (const QByteArray& piece : body.pieces)
        bytes += piece.toStdString();
    return bytes;
}

} // namespace

TEST(Multipart, IsWrittenToTheByteAndKeepsHostileFileNamesInsideTheirHeader) {
    using namespace std::string_literals;
    const Json params{{"chat_id", -1001234567890}, {"flag", true}, {"caption", "\"ü\"\r\n"}};
    const Upload upload{.field = "photo",
                        .filename = "grün \"1\"\r\nX-Evil: 1\r\n\r\n\0b\xFF.png"s,
                        .data = QByteArray{"\0\r\n--qln", 8},
                        .mime = "image/png"};
    const MultipartBody body = encodeMultipart(params, upload, "qln-B");
    EXPECT_EQ(body.contentType, "multipart/form-data; boundary=qln-B");
    const std::string expected =
        "--qln-B\r\nContent-Disposition: form-data; name=\"chat_id\"\r\n\r\n"
        "-1001234567890\r\n"
        "--qln-B\r\nContent-Disposition: form-data; name=\"flag\"\r\n\r\n"
        "true\r\n"
        "--qln-B\r\nContent-Disposition: form-data; name=\"caption\"\r\n\r\n"
        "\"ü\"\r\n\r\n"
        "--qln-B\r\nContent-Disposition: form-data; name=\"photo\"; "
        "filename=\"grün '1'  X-Evil: 1     b\uFFFD.png\"\r\nContent-Type: image/png\r\n\r\n" +
        std::string("\0\r\n--qln", 8) + "\r\n--qln-B--\r\n";
    EXPECT_EQ(whole(body), expected);
    EXPECT_EQ(body.pieces.at(1).constData(), upload.data.constData()) << "the file was copied";
}
