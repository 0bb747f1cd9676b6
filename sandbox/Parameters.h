// The parameters of a Bot API call, in whatever form the client sent them.
#pragma once

#include "sandbox/Http.h"
#include "sandbox/Json.h"

#include <cstdint>
#include <future>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon::sandbox {

enum class ParameterSource { query, form, json, multipart };

struct Parameter {
    std::string name;
    Json value; ///< with its JSON type when the source is `json`, else text
    ParameterSource source = ParameterSource::query;
};

struct UploadedFile {
    std::string field;
    std::string filename; ///< the raw bytes
    std::string mime;
    std::size_t size = 0;
    std::shared_future<std::string> sha256; ///< hexadecimal; ready soon after the reply is sent
    std::string_view bytes;                 ///< valid during the call only
};

struct Parameters {
    std::vector<Parameter> values;
    std::vector<UploadedFile> files;

    /// The value as text, whatever its JSON type, as the Bot API reads it. Empty if absent, which
    /// is the same to the Bot API. If a name comes twice, the first one counts.
    std::string text(std::string_view name) const;

    /// The value as an integer; none if it is no decimal number.
    std::optional<std::int64_t> integer(std::string_view name) const;

    /// "true", "yes" and "1" are true.
    bool flag(std::string_view name) const;

    const UploadedFile* file(std::string_view field) const;
};

/// Reads query string and body. The SHA-256 of each file is computed by `request.afterReply` (and
/// is empty if `hashFiles` is off). Throws ApiError with the Bot API's error for a malformed
/// request.
Parameters readParameters(HttpRequest& request, bool hashFiles);

} // namespace quillon::sandbox
