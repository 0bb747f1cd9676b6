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
