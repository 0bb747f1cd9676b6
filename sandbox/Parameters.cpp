#include "sandbox/Parameters.h"

#include "sandbox/ApiError.h"
#include "sandbox/Multipart.h"
#include "sandbox/Text.h"

#include <boost/algorithm/hex.hpp>
#include <openssl/evp.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>

namespace quillon::sandbox {

namespace {

std::string sha256(std::string_view bytes) {
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
    unsigned length = 0;
    EVP_Digest(bytes.data(), bytes.size(), digest.data(), &length, EVP_sha256(), nullptr);
    std::string result;
    boost::algorithm::hex_lower(digest.begin(), digest.begin() + length,
                                std::back_inserter(result));
    return result;
}

std::string urlDecoded(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::string_view digits = text.substr(i + 1, 2);
        unsigned char byte = 0;
        const char* const end = digits.data() + digits.size();
        if (text[i] == '%' && digits.size() == 2 &&
            std::from_chars(digits.data(), end, byte, 16).ptr == end) {
            result += static_cast<char>(byte);
            i += 2;
        } else {
            result += text[i] == '+' ? ' ' : text[i];
        }
    }
    return result;
}

void readForm(std::string_view form, ParameterSource source, Parameters& parameters) {
    while (!form.empty()) {
        const auto end = std::min(form.find('&'), form.size());
        const std::string_view pair = form.substr(0, end);
        const auto equals = std::min(pair.find('='), pair.size());
        const auto value = pair.substr(std::min(equals + 1, pair.size()));
        if (!pair.empty()) {
            parameters.values.push_back(
                {urlDecoded(pair.substr(0, equals)), urlDecoded(value), source});
        }
        form.remove_prefix(std::min(end + 1, form.size()));
    }
}

void readJson(std::string_view body, Parameters& parameters) {
    if (!isUtf8(body)) throw badRequest("strings must be encoded in UTF-8");
    const auto json = Json::parse(body, nullptr, false);
    if (trimmedAscii(body).substr(0, 1) != "{") throw badRequest("JSON object expected");
    if (json.is_discarded()) throw badRequest("can't parse JSON object");
    for (const auto& [name, value] : json.items())
        parameters.values.push_back({name, value, ParameterSource::json});
}

void readMultipart(HttpRequest& request, const std::string& contentType, bool hashFiles,
                   Parameters& parameters) try {
    for (const auto& part : parseMultipart(request.body.view(), boundaryOf(contentType))) {
        if (!part.filename) {
            parameters.values.push_back(
                {part.name, std::string{part.bytes}, ParameterSource::multipart});
            continue;
        }
        std::packaged_task<std::string()> hash{
            [bytes = part.bytes, hashFiles] { return hashFiles ? sha256(bytes) : std::string{}; }};
        parameters.files.push_back({part.name, *part.filename, part.mime, part.bytes.size(),
                                    hash.get_future().share(), part.bytes});
        request.afterReply.push_back(std::move(hash));
    }
} catch (const MultipartError& error) {
    throw badRequest(std::string{"can't parse multipart body: "} + error.what());
}

} // namespace

std::string Parameters::text(std::string_view name) const {
    const auto found = std::ranges::find(values, name, &Parameter::name);
    if (found == values.end()) return {};
    return found->value.is_string() ? found->value.get<std::string>() : dumped(found->value);
}

std::optional<std::int64_t> Parameters::integer(std::string_view name) const {
    const std::string value = text(name);
    std::int64_t result = 0;
    const char* const end = value.data() + value.size();
    const auto [last, error] = std::from_chars(value.data(), end, result);
    if (value.empty() || error != std::errc{} || last != end) return std::nullopt;
    return result;
}

bool Parameters::flag(std::string_view name) const {
    const std::string value = lowered(trimmedAscii(text(name)));
    return value == "true" || value == "yes" || value == "1";
}

const UploadedFile* Parameters::file(std::string_view field) const {
    const auto found = std::ranges::find(files, field, &UploadedFile::field);
    return found == files.end() ? nullptr : &*found;
}

Parameters readParameters(HttpRequest& request, bool hashFiles) {
    Parameters parameters;
    readForm(request.query, ParameterSource::query, parameters);
    const std::string_view body = request.body.view();
    const std::string contentType = request.header("content-type");
    const std::string type = lowered(trimmedAscii(contentType.substr(0, contentType.find(';'))));
    if (body.empty()) return parameters;
    if (type == "application/json") {
        readJson(body, parameters);
    } else if (type == "application/x-www-form-urlencoded") {
        readForm(body, ParameterSource::form, parameters);
    } else if (type == "multipart/form-data") {
        readMultipart(request, contentType, hashFiles, parameters);
    }
    return parameters;
}

} // namespace quillon::sandbox
