#pragma once

#include "platform/linux/http/CurlTransport.h"
#include "sandbox/Sandbox.h"
#include "support/Await.h"

#include <string>
#include <utility>

namespace quillon::sandbox {

struct Reply {
    int status = 0; ///< 0 when no whole reply came
    std::string text;

    Json json() const { return Json::parse(text, nullptr, false); }
    Json result() const { return json().value("result", Json{}); }
    /// The description of a refusal; empty for a call that was accepted.
    std::string error() const {
        const Json body = json();
        return body.is_object() ? body.value("description", std::string{}) : "no JSON object";
    }
};

/// A client of the sandbox, with the demonstration's bot.
class Client {
public:
    explicit Client(const Sandbox& sandbox) : base_{sandbox.baseUrl()} {}

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
        const auto reply = test::await(http_.post({.url = base_ + path,
                                                   .headers = {{"Content-Type", contentType}},
                                                   .body = {QByteArray::fromStdString(body)},
                                                   .progress = {}}));
        return reply ? Reply{reply->status, reply->body.toStdString()} : Reply{};
    }

    static std::string path(const std::string& method) {
        return "/bot" + std::string{Sandbox::demoToken} + "/" + method;
    }

private:
    CurlTransport http_{{.allowHttp = true}};
    std::string base_;
};

} // namespace quillon::sandbox
