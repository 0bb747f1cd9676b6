#pragma once

#include "base/Json.h"
#include "telegram/Upload.h"

#include <QByteArray>

#include <string>
#include <vector>

namespace quillon {

/// A multipart/form-data body (RFC 7578) in pieces; the file's bytes are one of them and are not
/// copied.
struct MultipartBody {
    /// Value of the header "Content-Type", boundary included.
    std::string contentType;
    std::vector<QByteArray> pieces;
};

/// "qln-" and a new random UUID in upper case: 40 characters.
[[nodiscard]] std::string makeBoundary();

/// One text part for each parameter, then the file part. Numbers are written in decimal, Booleans
/// as "true" or "false", text unchanged, lists and objects as JSON. In the file name a double quote
/// becomes an apostrophe, control characters become spaces so that no name can end its header, and
/// invalid UTF-8 becomes U+FFFD.
[[nodiscard]] MultipartBody encodeMultipart(const Json& params, const Upload& upload,
                                            const std::string& boundary);

} // namespace quillon
