// One HTTP request and its reply, as the server hands them to what answers them.
#pragma once

#include <chrono>
#include <cstddef>
#include <future>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillon::sandbox {

/// Received bytes, in memory that is neither initialised first nor copied later.
struct Body {
    std::unique_ptr<char[]> bytes;
    std::size_t size = 0;
    std::size_t capacity = 0; ///< of the memory

    std::string_view view() const { return {bytes.get(), size}; }
};

struct HttpRequest {
    HttpRequest() = default;
    HttpRequest(const HttpRequest&) = delete;
    HttpRequest& operator=(const HttpRequest&) = delete;
    ~HttpRequest() { finish(); }

    /// Runs the work that was deferred until the client has its reply.
    void finish() {
        for (auto& task : std::exchange(afterReply, {}))
            task();
    }

    /// The header with this name in lower case; empty if there is none.
    std::string header(const std::string& name) const {
        const auto found = headers.find(name);
        return found == headers.end() ? std::string{} : found->second;
    }

    std::string verb;
    std::string path;
    std::string query;                          ///< without the question mark
    std::map<std::string, std::string> headers; ///< names in lower case
    int connection = 0; ///< counts from 1; requests over one kept-alive connection share it
    std::chrono::system_clock::time_point time;
    Body body;
    std::vector<std::packaged_task<std::string()>> afterReply; ///< may use `body`
};

struct HttpReply {
    int status = 200;
    std::string contentType = "application/json";
    std::string body;
};

} // namespace quillon::sandbox
