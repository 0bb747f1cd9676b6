#include "sandbox/Multipart.h"

#include "sandbox/Text.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <utility>

namespace quillon::sandbox {

namespace {

constexpr std::string_view lineEnd = "\r\n";
constexpr std::size_t longestBoundary = 70;
constexpr std::size_t longestPartHeader = 16'384;

// Whether the text is made of letters, digits and the given other characters, at least one.
bool consistsOf(std::string_view text, std::string_view others) {
    return !text.empty() && std::ranges::all_of(text, [others](char c) {
        return isLetter(c) || isDigit(c) || others.find(c) != std::string_view::npos;
    });
}

bool isToken(std::string_view text) {
    return consistsOf(text, "!#$%&'*+-.^_`|~");
}

bool isBoundary(std::string_view text) {
    return consistsOf(text, "'()+_,-./:=? ") && text.size() <= longestBoundary &&
           text.back() != ' ';
}

// glibc's memmem, unlike string_view::find, stays fast on tens of megabytes.
std::size_t findBytes(std::string_view bytes, std::string_view wanted, std::size_t from) {
    const void* const found =
        memmem(bytes.data() + from, bytes.size() - from, wanted.data(), wanted.size());
    if (found == nullptr) return std::string_view::npos;
    return static_cast<std::size_t>(static_cast<const char*>(found) - bytes.data());
}

using HeaderParameters = std::map<std::string, std::string, std::less<>>;

// Parses the parameters after a header's value: `; name=token` and `; name="anything but a quote"`.
HeaderParameters parseParameters(std::string_view rest) {
    HeaderParameters parameters;
    const auto skipSpace = [&] {
        rest.remove_prefix(std::min(rest.find_first_not_of(" \t"), rest.size()));
    };
    for (skipSpace(); !rest.empty(); skipSpace()) {
        if (rest.front() != ';') throw MultipartError{"stray bytes in a part header"};
        rest.remove_prefix(1);
        skipSpace();
        const auto equals = rest.find('=');
        const std::string name = lowered(rest.substr(0, equals));
        if (equals == std::string_view::npos || !isToken(name))
            throw MultipartError{"malformed parameter in a part header"};
        rest.remove_prefix(equals + 1);
        const bool quoted = rest.starts_with('"');
        if (quoted) rest.remove_prefix(1);
        const auto end =
            quoted ? rest.find('"') : std::min(rest.find_first_of("; \t"), rest.size());
        if (end == std::string_view::npos)
            throw MultipartError{"unterminated quoted text in a part header"};
        const std::string_view value = rest.substr(0, end);
        if (!quoted && !isToken(value)) throw MultipartError{"malformed value in a part header"};
        if (!parameters.emplace(name, value).second)
            throw MultipartError{"parameter given twice in a part header"};
        rest.remove_prefix(quoted ? end + 1 : end);
    }
    return parameters;
}

void readDisposition(std::string_view value, MultipartPart& part) {
    constexpr std::string_view formData = "form-data";
    if (lowered(value.substr(0, formData.size())) != formData)
        throw MultipartError{"part is not form-data"};
    HeaderParameters parameters = parseParameters(value.substr(formData.size()));
    const auto name = parameters.find("name");
    if (name == parameters.end() || name->second.empty())
        throw MultipartError{"part without a name"};
    part.name = name->second;
    // RFC 7578 section 4.2 forbids the extended form of RFC 5987 here.
    if (parameters.contains("filename*")) throw MultipartError{"filename* is not allowed"};
    const auto filename = parameters.find("filename");
    if (filename != parameters.end()) part.filename = filename->second;
}

void readHeaderLine(std::string_view line, MultipartPart& part, bool& disposed) {
    const auto colon = line.find(':');
    if (colon == std::string_view::npos || !isToken(line.substr(0, colon)))
        throw MultipartError{"malformed part header"};
    const auto control = [](char c) { return (c >= 0 && c < ' ' && c != '\t') || c == 0x7F; };
    if (std::ranges::any_of(line, control))
        throw MultipartError{"control character in a part header"};
    const std::string name = lowered(line.substr(0, colon));
    const std::string value = trimmedAscii(line.substr(colon + 1));
    if (name == "content-disposition") {
        if (std::exchange(disposed, true)) throw MultipartError{"part header given twice"};
        readDisposition(value, part);
    } else if (name == "content-type") {
        const auto slash = value.find('/');
        const auto end = std::min(value.find(';'), value.size());
        if (!part.mime.empty()) throw MultipartError{"part header given twice"};
        if (slash > end || !isToken(std::string_view{value}.substr(0, slash)) ||
            !isToken(trimmedAscii(std::string_view{value}.substr(slash + 1, end - slash - 1))))
            throw MultipartError{"malformed Content-Type of a part"};
        part.mime = value;
    }
}

// Reads one part's header lines; returns where its content begins.
std::size_t readHeader(std::string_view body, std::size_t position, MultipartPart& part) {
    bool disposed = false;
    const std::size_t start = position;
    while (true) {
        const auto end = findBytes(body, lineEnd, position);
        if (end == std::string_view::npos || end - start > longestPartHeader)
            throw MultipartError{"part header does not end"};
        if (end == position) break;
        readHeaderLine(body.substr(position, end - position), part, disposed);
        position = end + lineEnd.size();
    }
    if (!disposed) throw MultipartError{"part without Content-Disposition"};
    return position + lineEnd.size();
}

} // namespace

std::string boundaryOf(std::string_view contentType) {
    const auto end = contentType.find(';');
    if (lowered(trimmedAscii(contentType.substr(0, end))) != "multipart/form-data" ||
        end == std::string_view::npos)
        throw MultipartError{"boundary not found"};
    const HeaderParameters parameters = parseParameters(contentType.substr(end));
    const auto boundary = parameters.find("boundary");
    if (boundary == parameters.end() || !isBoundary(boundary->second))
        throw MultipartError{"boundary not found"};
    return boundary->second;
}

std::vector<MultipartPart> parseMultipart(std::string_view body, std::string_view boundary) {
    const std::string delimiter = "\r\n--" + std::string{boundary};
    const std::string_view opening = std::string_view{delimiter}.substr(lineEnd.size());
    if (!body.starts_with(opening)) throw MultipartError{"body does not begin with its boundary"};
    std::vector<MultipartPart> parts;
    std::size_t position = opening.size();
    while (!body.substr(position).starts_with("--")) {
        if (!body.substr(position).starts_with(lineEnd))
            throw MultipartError{"stray bytes behind a boundary"};
        MultipartPart part;
        const std::size_t content = readHeader(body, position + lineEnd.size(), part);
        // In an empty part, the line end of the header's empty line is also the one before the
        // boundary.
        const auto end = findBytes(body, delimiter, content - lineEnd.size());
        if (end == std::string_view::npos) throw MultipartError{"closing boundary is missing"};
        if (end < content) throw MultipartError{"part without content"};
        part.bytes = body.substr(content, end - content);
        parts.push_back(std::move(part));
        position = end + delimiter.size();
    }
    const std::string_view rest = body.substr(position + 2);
    if (!rest.empty() && rest != lineEnd)
        throw MultipartError{"stray bytes behind the closing boundary"};
    if (parts.empty()) throw MultipartError{"body without parts"};
    return parts;
}

} // namespace quillon::sandbox
