// A Bot API call that is refused.
#pragma once

#include "sandbox/Http.h"
#include "sandbox/Json.h"

#include <stdexcept>
#include <string>
#include <utility>

namespace quillon::sandbox {

struct ApiError : std::runtime_error {
    ApiError(int errorCode, const std::string& description, Json errorParameters = nullptr)
        : std::runtime_error{description},
          code{errorCode},
          parameters(std::move(errorParameters)) {}

    int code;
    Json parameters;
};

/// 400 with "Bad Request: " before the text.
inline ApiError badRequest(const std::string& what) {
    return {400, "Bad Request: " + what};
}

/// {"ok":false,"error_code":…,"description":…} and, where there are any, "parameters".
inline HttpReply errorReply(const ApiError& error) {
    Json body{{"ok", false}, {"error_code", error.code}, {"description", error.what()}};
    if (!error.parameters.is_null()) body["parameters"] = error.parameters;
    return {error.code, "application/json", dumped(body)};
}

} // namespace quillon::sandbox
