// A Bot API call that is refused.
#pragma once

#include "sandbox/Json.h"

#include <stdexcept>
#include <string>
#include <utility>

namespace quillon::sandbox {

/// Becomes {"ok":false,"error_code":…,"description":…} and, where there are any, "parameters".
class ApiError : public std::runtime_error {
public:
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

} // namespace quillon::sandbox
