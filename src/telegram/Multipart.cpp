#include "telegram/Multipart.h"

#include "base/Text.h"
#include "base/Uuid.h"

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
    return "qln-" + uuidText(QUuid::createUuid());
}

MultipartBody encodeMultipart(const Json& params, const Upload& upload,
                              const std::string& boundary) {
    std::string head;
    const auto openPart = [&head, &boundary](const std::string& name) {
        head.append("--").append(boundary);
        head.append("\r\nContent-Disposition: form-data; name=\"").append(name).append("\"");
    };
    for (const auto& [key, value] : params.items()) {
        openPart(key);
        head.append("\r\n\r\n").append(plainText(value)).append("\r\n");
    }
    openPart(upload.field);
    head.append("; filename=\"").append(safeFilename(upload.filename)).append("\"\r\n");
    head.append("Content-Type: ").append(upload.mime).append("\r\n\r\n");
    const std::string tail = "\r\n--" + boundary + "--\r\n";
    return {
        .contentType = "multipart/form-data; boundary=" + boundary,
        .pieces = {QByteArray::fromStdString(head), upload.data, QByteArray::fromStdString(tail)}};
}

} // namespace quillon
