#include "send/Clipboard.h"

#include "SendTest.h"
#include "send/ClipboardFormats.h"

namespace quillon::test {

namespace {

using namespace std::string_literals;

QByteArray bytes(const std::string& text) {
    return QByteArray::fromStdString(text);
}

/// A JPEG whose Exif block says that it is to be turned by 90 degrees.
QByteArray sidewaysJpeg() {
    const auto exif = "\xff\xe1\x00\x22"
                      "Exif\0\0MM\0*\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0\x06\0\0\0\0\0\0"s;
    QByteArray jpeg = picture("JPEG");
    return jpeg.insert(2, bytes(exif));
}

/// A TIFF with a tag that no library knows, in place of the one for the unit of its resolution.
QByteArray unusualTiff() {
    return picture("TIFF").replace("\x28\x01\x03", "\xe8\xfd\x03");
}

struct ClipboardRead : testing::Test {
    ClipContent read(FakePasteboard::Content content) {
        pasteboard.copy(std::move(content));
        return await(Clipboard::read(pasteboard));
    }

    FakePasteboard pasteboard;
};

} // namespace

TEST_F(ClipboardRead, TakesFilesBeforeEverythingAndLeavesTheRestUnread) {
    const auto content = read({{"image/png", picture("PNG")},
                               {"UTF8_STRING", "b a.txt"},
                               {"text/uri-list", "file:///tmp/b%20a.txt\r\nfile:///tmp/a\r\n"}});
    EXPECT_EQ(content, ClipContent{(ClipFiles{{"/tmp/b a.txt", "/tmp/a"}})});
    EXPECT_THAT(pasteboard.reads, ElementsAre(testing::Pair("text/uri-list", 1)));
}

TEST_F(ClipboardRead, TakesPngUntouchedWithTheTextBesideIt) {
    const QByteArray png = "not looked into";
    EXPECT_EQ(read({{"image/tiff", picture("TIFF")}, {"image/png", png}, {"UTF8_STRING", " \n"}}),
              ClipContent{(ClipImage{png, " \n"})});
    EXPECT_EQ(pasteboard.reads.count("image/tiff"), 0U);
    EXPECT_EQ(read({{"image/png", png}}), ClipContent{(ClipImage{png, std::nullopt})});
    EXPECT_EQ(read({{"image/png", png}, {"STRING", ""}}), ClipContent{(ClipImage{png, ""})});
}

TEST_F(ClipboardRead, ConvertsOtherBitmapsToPngWithoutAWord) {
    testing::internal::CaptureStderr();
    const std::vector<std::pair<std::string, QByteArray>> cases{
        {"image/tiff", unusualTiff()},
        {"image/bmp", picture("BMP")},
        {"image/webp", picture("WEBP")},
        {"image/jpeg", picture("JPEG")},
        {"image/jpeg", picture("JPEG").chopped(4)},
        {"image/gif", picture("PNG")},
    };
    for (const auto& [format, bitmap] : cases) {
        const auto content = read({{"image/png", std::nullopt}, {format, bitmap}});
        const auto* image = std::get_if<ClipImage>(&content);
        ASSERT_TRUE(image) << format;
        EXPECT_EQ(QImage::fromData(image->png, "PNG").size(), QSize(3, 2)) << format;
    }
    const auto upright = read({{"image/jpeg", sidewaysJpeg()}});
    EXPECT_EQ(Clipboard::summary(upright).line, "Image · 2×3");
    EXPECT_EQ(read({{"image/tiff", picture("TIFF").left(20)}}), ClipContent{ClipEmpty{}});
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(ClipboardRead, GoesOnWhereAFormatCannotBeRead) {
    const FakePasteboard::Content unusable[]{
        {{"text/uri-list", "https://example.org/\r\n"}},
        {{"image/png", ""}},
        {{"image/png", picture("PNG").chopped(1)}},
        {{"image/png", picture("PNG").left(40)}},
        {{"application/pdf", "%PDF"}},
        {{"UTF8_STRING", std::nullopt}, {"text/plain;charset=UTF-8", std::nullopt}},
    };
    for (FakePasteboard::Content content : unusable) {
        content.emplace_back("text/plain", "a");
        content.emplace_back("STRING", "b");
        EXPECT_EQ(read(content), ClipContent{ClipText{"a"}}) << content.front().first;
    }
    EXPECT_EQ(read({{"text/uri-list", std::nullopt},
                    {"x-special/gnome-copied-files", "copy\nfile:///a"},
                    {"UTF8_STRING", "a"}}),
              ClipContent{ClipFiles{{"/a"}}});
}

TEST_F(ClipboardRead, KeepsTextAsCopiedButCountsBlankTextAsNothing) {
    EXPECT_EQ(read({{"UTF8_STRING", "  hello  \r\n"}}), ClipContent{ClipText{"  hello  \r\n"}});
    for (const char* blank : {"", " \t\r\n\v\f", "\u00a0\u2003\u2028\u3000\u0085"})
        EXPECT_EQ(read({{"UTF8_STRING", blank}}), ClipContent{ClipEmpty{}}) << blank;
    EXPECT_EQ(read({}), ClipContent{ClipEmpty{}});
    pasteboard.reachedBy = ClipboardWay::none;
    EXPECT_EQ(read({}), ClipContent{ClipEmpty{.outOfReach = true}});
}

TEST_F(ClipboardRead, LooksAgainWhenSomethingIsCopiedMeanwhile) {
    pasteboard.copy({{"image/png", picture("PNG")}, {"UTF8_STRING", "old"}});
    pasteboard.beforeData = [this](const std::string&) {
        pasteboard.beforeData = nullptr;
        pasteboard.copy({{"UTF8_STRING", "new"}});
    };
    EXPECT_EQ(await(Clipboard::read(pasteboard)), ClipContent{ClipText{"new"}});
}

TEST_F(ClipboardRead, ComesToAnEndOnAClipboardThatNeverRests) {
    pasteboard.copy({{"UTF8_STRING", "tick"}});
    pasteboard.beforeData = [this](const std::string&) {
        pasteboard.copy({{"UTF8_STRING", "tick"}});
    };
    EXPECT_EQ(await(Clipboard::read(pasteboard)), ClipContent{ClipText{"tick"}});
}

TEST(ClipboardFormats, NamesTheBestFormatsFirst) {
    using ClipboardFormats::formatsOf;
    using ClipboardFormats::Kind;
    using Names = std::vector<std::string>;
    EXPECT_EQ(formatsOf(Kind::text, Names{"STRING", "text/html", "text/plain",
                                          "text/plain;charset=UTF-8", "TARGETS", "UTF8_STRING"}),
              (Names{"UTF8_STRING", "text/plain;charset=UTF-8", "text/plain", "STRING"}));
    EXPECT_EQ(formatsOf(Kind::image, Names{"image/jpeg", "image/bmp", "image/tiff", "image/PNG"}),
              (Names{"image/PNG", "image/tiff", "image/bmp", "image/jpeg"}));
}

TEST(ClipboardFormats, DecodesListsOfLocalFiles) {
    using Paths = std::vector<std::filesystem::path>;
    const std::vector<std::pair<std::string, Paths>> cases{
        {"# files\r\nfile:///a\r\n\r\n#file:///b\r\nfile:///c\r\n", {"/a", "/c"}},
        {"copy\nfile:///a\nfile:///b", {"/a", "/b"}},
        {"cut\nfile:///a\n\0"s, {"/a"}},
        {"file://localhost/a\nFILE://LOCALHOST/b\nfile:/c\nfile://desk/d",
         {"/a", "/b", "/c", "/d"}},
        {"file://server/a\nfile://localhosts/b\nhttp://localhost/c\nfile:d\n/e\nfile://", {}},
        {"file:///%ff%FE%e4%C3%A9", {"/\xff\xfe\xe4\xc3\xa9"}},
        {"file:///100%\nfile:///%zz%4\nfile:///a+b#c?d", {"/100%", "/%zz%4", "/a+b#c?d"}},
        {"file:///a%00b\nfile:///c", {"/c"}},
        {"file:///folder/\nfile:///", {"/folder", "/"}},
    };
    for (const auto& [list, paths] : cases) {
        const auto decoded = ClipboardFormats::decodedPaths(bytes(list), "Desk");
        ASSERT_EQ(decoded.size(), paths.size()) << list;
        for (std::size_t i = 0; i < paths.size(); ++i) {
            EXPECT_EQ(decoded[i].native(), paths[i].native()); // "/a" == "//a" as paths
        }
    }
}

TEST(ClipboardFormats, DecodesText) {
    using ClipboardFormats::decodedText;
    EXPECT_EQ(decodedText(bytes("a\0b\r\n\0\0"s), "UTF8_STRING"), "a\0b\r\n"s);
    EXPECT_EQ(decodedText(bytes("\xc3\xa9\xe9 \xf0\x9f\x98\x80"), "text/plain"),
              "\u00e9\ufffd \U0001f600");
    EXPECT_EQ(decodedText(bytes("\xc3\xa9\xff\0"s), "STRING"), "Ã©ÿ");
}

TEST(ClipboardSummary, SaysWhatTheClipboardHolds) {
    const QByteArray png = picture("PNG", {1920, 1080});
    const std::vector<std::pair<ClipContent, Clipboard::Summary>> cases{
        {ClipFiles{{"/tmp/a.tar.gz"}}, {"doc", "a.tar.gz"}},
        {ClipFiles{{"/tmp/.hidden"}}, {"doc", ".hidden"}},
        {ClipFiles{{"/tmp/caf\xe9"}}, {"doc", "caf\ufffd"}},
        {ClipFiles{{"/"}}, {"doc", "/"}},
        {ClipFiles{{"/a", "/b", "/c"}}, {"doc.on.doc", "3 files"}},
        {ClipImage{png, "text"}, {"photo", "Image · 1920×1080"}},
        {ClipImage{png.left(20), {}}, {"photo", "Image"}},
        {ClipImage{"no image", "text"}, {"photo", "Image"}},
        {ClipText{"  hello  "}, {"text.alignleft", "“hello”"}},
        {ClipText{"\r\n\r\n\tfirst \r\nsecond"}, {"text.alignleft", "“first”"}},
        {ClipText{"   \nsecond"}, {"text.alignleft", "“”"}},
        {ClipEmpty{}, {"clipboard", "The clipboard is empty"}},
        {ClipEmpty{.outOfReach = true},
         {"exclamationmark.circle", "The clipboard is out of reach. This desktop offers neither "
                                    "data-control nor Xwayland."}},
    };
    for (const auto& [content, summary] : cases)
        EXPECT_EQ(Clipboard::summary(content), summary) << summary.line;
}

} // namespace quillon::test
