// The JSON type of the sandbox: it keeps keys in the order in which they were written.
#pragma once

#include <nlohmann/json.hpp>

#include <string>

namespace quillon::sandbox {

using Json = nlohmann::ordered_json;

/// Compact UTF-8; bytes that are no UTF-8 become U+FFFD.
inline std::string dumped(const Json& json, int indent = -1) {
    return json.dump(indent, ' ', false, Json::error_handler_t::replace);
}

} // namespace quillon::sandbox
