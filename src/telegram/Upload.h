#pragma once

#include <QByteArray>

#include <string>

namespace quillon {

/// The one file of a request.
struct Upload {
    /// The Bot API parameter that takes the file: "photo" or "document".
    std::string field;
    /// The name announced to Telegram; may hold any bytes.
    std::string filename;
    /// The whole content.
    QByteArray data;
    /// Content type, for example "image/png".
    std::string mime;
};

} // namespace quillon
