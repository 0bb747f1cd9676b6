// A strict reader of multipart/form-data bodies (RFC 7578 over RFC 2046): it refuses the mistakes
// of careless encoders, which a lenient server would hide.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quillon::sandbox {

struct MultipartPart {
    std::string name;
    std::optional<std::string> filename; ///< the raw bytes, including any backslash
    std::string mime;                    ///< empty when the part names none
    std::string_view bytes;              ///< within the body that was read
};

struct MultipartError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The boundary that a Content-Type header announces. Throws MultipartError when there is none or
/// it is not 1 to 70 of the characters that RFC 2046 allows.
std::string boundaryOf(std::string_view contentType);

/// The parts, in order. Throws MultipartError for bytes before the first or after the last
/// boundary, a missing closing boundary, a malformed part header and a part without a name. Content
/// is never copied, only searched once.
std::vector<MultipartPart> parseMultipart(std::string_view body, std::string_view boundary);

} // namespace quillon::sandbox
