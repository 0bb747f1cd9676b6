#include "telegram/Multipart.h"

#include "base/Text.h"

#include <QUuid>

#include <algorithm>

namespace quillon {

namespace {

std::string plainText(const Json& value) {
    return value.is_string() ? value.get<std::string>() : writeJson(value);
}

std::string safeFilename(const std::string& filename) {
    std::string safe = validUtf8(filename);
    std::ranges::replace(safe, '"', '\'');
    std::ranges::replace_if(
        safe, [](char letter) { return (letter >= 0 && letter < ' ') || letter == 0x7F; }, ' ');
    return safe;
}

} // namespace

std::string makeBoundary() {
    const QString uuid = QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
    return "qln-" + uuid.toStdString();
}

MultipartBody encodeMultipart(const Json& params, const Upload& upload,
                              const std::string& boundary) {
    std::string head;
    for (const auto& [key, value] : params.items()) {
        head += "--" + boundary + "\r\nContent-Disposition: form-data; name=\"" + key +
                "\"\r\n\r\n" + plainText(value) + "\r\n";
    }
    head += "--" + boundary + "\r\nContent-Disposition: form-data; name=\"" + upload.field +
            "\"; filename=\"" + safeFilename(upload.filename) +
            "\"\r\nContent-Type: " + upload.mime + "\r\n\r\n";
    const std::string tail = "\r\n--" + boundary + "--\r\n";
    return {
        .contentType = "multipart/form-data; boundary=" + boundary,
        .pieces = {QByteArray::fromStdString(head), upload.data, QByteArray::fromStdString(tail)}};
}

} // namespace quillon
