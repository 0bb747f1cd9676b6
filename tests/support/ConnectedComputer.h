#pragma once

#include "sandbox/Sandbox.h"
#include "support/Await.h"
#include "support/TestComputer.h"

namespace quillon::test {

/// Telegram, as a test commands it. Comes before the computer, whose platform needs its address.
struct Phone {
    sandbox::Sandbox sandbox;
};

/// A computer whose Bot API is a sandbox with one bot and nothing else.
struct BotComputer : Phone, TestComputer {
    static constexpr const char* token = sandbox::Sandbox::demoToken;

    BotComputer() : TestComputer{sandbox.baseUrl()} { sandbox.addBot(token, "quillon_demo_bot"); }

    /// The message that the action fails with; empty when it succeeds.
    template <typename T>
    static std::string failure(QCoro::Task<T> action) {
        try {
            await(std::move(action));
        } catch (const TelegramError& error) {
            return error.message;
        }
        return {};
    }

    /// The methods that were called since clear(), in order.
    [[nodiscard]] std::vector<std::string> methods() const {
        std::vector<std::string> methods;
        for (const sandbox::RequestRecord& request : sandbox.requests())
            methods.push_back(request.method);
        return methods;
    }

    /// The same with their parameters, as JSON with their types.
    [[nodiscard]] std::vector<std::string> calls() const {
        std::vector<std::string> calls;
        for (const sandbox::RequestRecord& request : sandbox.requests()) {
            Json parameters = Json::object();
            for (const auto& parameter : request.parameters.values)
                parameters[parameter.name] = parameter.value;
            calls.push_back(request.method + " " + writeJson(parameters));
        }
        return calls;
    }

    /// The usage events since clear().
    [[nodiscard]] std::vector<std::string> newEvents() const {
        const std::vector<std::string> all = events();
        return {all.begin() + static_cast<std::ptrdiff_t>(oldEvents), all.end()};
    }

    /// Lets what happened so far not count.
    void clear() {
        sandbox.clearRequests();
        banner.shown.clear();
        sounds.played.clear();
        oldEvents = events().size();
    }

    std::size_t oldEvents = 0;
};

/// A computer whose store has gone through the setup with a bot and a group.
struct ConnectedComputer : BotComputer {
    ConnectedComputer() : group{sandbox.addGroup()} {
        sandbox.userSays(group, "hi");
        await(store->connectBot(token));
        await(store->findGroup());
        await(store->createTopics());
        clear();
    }

    /// Sends the content as the clipboard's.
    void send(FakePasteboard::Content content) {
        pasteboard.copy(std::move(content));
        await(store->sendClipboard(Trigger::button));
    }

    [[nodiscard]] const Topic& topic(std::string_view key) const {
        return *std::ranges::find(store->config().topics, key, &Topic::key);
    }

    /// The thread ids of all topics, in their order.
    [[nodiscard]] std::vector<std::optional<std::int64_t>> threads() const {
        std::vector<std::optional<std::int64_t>> threads;
        for (const Topic& each : store->config().topics)
            threads.push_back(each.threadId);
        return threads;
    }

    void forgetThreads() const {
        store->changeConfig([](Config& config) {
            for (Topic& each : config.topics)
                each.threadId.reset();
        });
    }

    /// The messages that the topic shows on the phone, without those of the setup.
    [[nodiscard]] std::vector<Json> messages(std::string_view key) const {
        const Json view = sandbox.view();
        const Json& topics = view["groups"][0]["topics"];
        const auto shown = std::ranges::find_if(
            topics, [&](const Json& candidate) { return candidate["id"] == topic(key).threadId; });
        const auto& all = (*shown)["messages"];
        std::vector<Json> messages{all.begin(), all.end()};
        std::erase_if(messages, [](const Json& message) {
            return message["kind"] == "service" || message.value("text", "").starts_with("✅");
        });
        return messages;
    }

    std::int64_t group;
};

} // namespace quillon::test
