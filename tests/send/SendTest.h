#pragma once

#include "support/ConnectedComputer.h"
#include "support/Faults.h"

#include <QBuffer>
#include <QImage>

namespace quillon::test {

inline QByteArray picture(const char* format, QSize size = {3, 2}) {
    QImage image{size, QImage::Format_RGB32};
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer{&bytes};
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format)) << format;
    return bytes;
}

/// A picture of 4 by 3 pixels in exactly so many bytes; what follows a PNG's end does not matter.
inline QByteArray pngOf(qsizetype size) {
    return picture("PNG", {4, 3}).leftJustified(size, '\0');
}

inline FakePasteboard::Content text(std::string text) {
    return {{"UTF8_STRING", QByteArray::fromStdString(text)}};
}

inline FakePasteboard::Content files(const std::vector<std::filesystem::path>& paths) {
    QByteArray list;
    for (const std::filesystem::path& path : paths) {
        const QByteArray name = QByteArray::fromStdString(path.native());
        list += "file://" + name.toPercentEncoding("/") + "\r\n";
    }
    return {{"text/uri-list", list}};
}

inline std::string repeated(std::string_view part, int count) {
    return QByteArray{part.data(), qsizetype(part.size())}.repeated(count).toStdString();
}

/// A store that is set up, and files to send.
struct SendTest : testing::Test {
    // Qt does not remove files whose names it cannot decode.
    ~SendTest() override { std::filesystem::remove_all(documents); }

    /// A file of so many zero bytes that take no room on the disk.
    [[nodiscard]] std::filesystem::path file(const std::string& name, std::uintmax_t size = 3) {
        std::filesystem::path path = documents / name;
        computer.files.createFolder(documents);
        computer.files.write(path, {});
        std::filesystem::resize_file(path, size);
        return path;
    }

    std::vector<std::string> banners() {
        std::vector<std::string> texts;
        for (const BannerMessage& shown : computer.banner.shown)
            texts.push_back(shown.text);
        return texts;
    }

    ConnectedComputer computer;
    const std::filesystem::path documents = computer.path("documents");
};

} // namespace quillon::test
