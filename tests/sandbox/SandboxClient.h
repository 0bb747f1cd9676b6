// A client of the sandbox over libcurl, with a connection that it keeps.
#pragma once

#include "sandbox/Sandbox.h"

#include <curl/curl.h>

#include <string>
#include <utility>
#include <vector>

namespace quillon::sandbox {

struct Reply {
    CURLcode code = CURLE_OK;
    long status = 0;
    std::string text;

    Json json() const { return Json::parse(text, nullptr, false); }
    Json result() const { return json().value("result", Json{}); }
    /// The description of a refusal; empty for a call that was accepted.
    std::string error() const {
        const Json body = json();
        return body.is_object() ? body.value("description", std::string{}) : "no JSON object";
    }
};

class Client {
public:
    explicit Client(const Sandbox& sandbox, std::string token = Sandbox::demoToken)
        : base_{sandbox.baseUrl()},
          token_{std::move(token)},
          ca_{sandbox.caFile().string()} {}
    ~Client() { curl_easy_cleanup(curl_); }
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    Reply call(const std::string& method, const Json& parameters = Json::object()) {
        return post(path(method), "application/json", dumped(parameters));
    }

    Reply upload(const std::string& method, const Json& parameters, const std::string& field,
                 const std::string& bytes, const std::string& filename = "a.bin") {
        std::string body;
        for (const auto& [name, value] : parameters.items()) {
            body += "--b\r\nContent-Disposition: form-data; name=\"" + name + "\"\r\n\r\n" +
                    (value.is_string() ? value.get<std::string>() : dumped(value)) + "\r\n";
        }
        body += "--b\r\nContent-Disposition: form-data; name=\"" + field + "\"; filename=\"" +
                filename + "\"\r\nContent-Type: image/png\r\n\r\n" + bytes + "\r\n--b--\r\n";
        return post(path(method), "multipart/form-data; boundary=b", body);
    }

    Reply post(const std::string& path, const std::string& contentType, const std::string& body) {
        Reply reply;
        curl_easy_reset(curl_);
        curl_slist* headers = curl_slist_append(nullptr, ("Content-Type: " + contentType).c_str());
        curl_easy_setopt(curl_, CURLOPT_URL, (base_ + path).c_str());
        curl_easy_setopt(curl_, CURLOPT_HTTPHEADER, headers);
        curl_easy_setopt(curl_, CURLOPT_POSTFIELDS, body.data());
        curl_easy_setopt(curl_, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(body.size()));
        curl_easy_setopt(curl_, CURLOPT_TIMEOUT_MS, timeoutMs);
        curl_easy_setopt(curl_, CURLOPT_NOSIGNAL, 1L);
        curl_easy_setopt(curl_, CURLOPT_NOPROXY, "*");
        if (!ca_.empty()) curl_easy_setopt(curl_, CURLOPT_CAINFO, ca_.c_str());
        curl_easy_setopt(curl_, CURLOPT_WRITEFUNCTION, append);
        curl_easy_setopt(curl_, CURLOPT_WRITEDATA, &reply.text);
        reply.code = curl_easy_perform(curl_);
        curl_easy_getinfo(curl_, CURLINFO_RESPONSE_CODE, &reply.status);
        curl_slist_free_all(headers);
        return reply;
    }

    std::string path(const std::string& method) const { return "/bot" + token_ + "/" + method; }

    long timeoutMs = 20'000;

private:
    static std::size_t append(const char* data, std::size_t, std::size_t size, std::string* text) {
        text->append(data, size);
        return size;
    }

    CURL* curl_ = curl_easy_init();
    std::string base_;
    std::string token_;
    std::string ca_;
};

} // namespace quillon::sandbox
