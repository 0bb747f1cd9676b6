// The clients' requests: one record each and, on demand, one printed line.
#pragma once

#include "sandbox/Json.h"
#include "sandbox/Parameters.h"

#include <chrono>
#include <cstdint>
#include <mutex>
#include <string>
#include <vector>

namespace quillon::sandbox {

/// A Bot API request. The token is never part of it, only the bot's number.
struct RequestRecord {
    int connection = 0;
    std::chrono::system_clock::time_point time;
    std::string verb;
    std::string method;      ///< as spelt in the path
    std::int64_t bot = 0;    ///< 0 for an unknown token
    std::string contentType; ///< empty without a body
    Parameters parameters;   ///< without the files' bytes; empty when the body was not read
    std::size_t bodySize = 0;
    std::string fault; ///< the name of the fault that it met; empty for none
    int status = 0;    ///< HTTP status of the reply; 0 when there was none
    std::string error; ///< the reply's description when it was refused

    /// The parameter's value with its JSON type; null if there is none.
    Json parameter(std::string_view name) const;
};

Json toJson(const RequestRecord& record);

/// Thread-safe.
class RequestLog {
public:
    explicit RequestLog(bool verbose) : verbose_{verbose} {}

    void add(RequestRecord record);
    void clear();
    std::vector<RequestRecord> records() const;
    /// Prints a line that is about no Bot API request.
    void note(const std::string& line) const;

private:
    bool verbose_;
    mutable std::mutex mutex_;
    std::vector<RequestRecord> records_;
};

} // namespace quillon::sandbox
