// A local stand-in for the Telegram Bot API, for tests, demonstrations and benchmarks. It behaves
// like Telegram, including limits and error texts, and can be told to fail like a network.
#pragma once

#include "sandbox/Backend.h"
#include "sandbox/Fault.h"
#include "sandbox/RequestLog.h"
#include "sandbox/World.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace quillon::sandbox {

struct Options {
    std::uint16_t port = 0; ///< 0 for any free one
    bool tls = false;
    bool verbose = false;  ///< one line per request on standard error, without tokens
    bool hashFiles = true; ///< keep each upload's SHA-256
};

/// Serves on its own threads from construction on. Thread-safe. Groups and topics are named by
/// their ids; an unknown id throws std::out_of_range.
class Sandbox {
public:
    static constexpr const char* demoToken = "7000000001:demo-demo-demo-demo-demo-demo-demo1";

    /// Throws boost::system::system_error when the port is taken.
    explicit Sandbox(const Options& options = {});
    ~Sandbox();
    Sandbox(const Sandbox&) = delete;
    Sandbox& operator=(const Sandbox&) = delete;

    /// Such as "http://127.0.0.1:40123"; the same after stop() and start().
    std::string baseUrl() const;
    /// The certificate that a client must trust to use TLS; empty without TLS.
    std::filesystem::path caFile() const;

    /// Breaks all connections and refuses new ones, as a killed server does.
    void stop();
    /// Serves again on the same port, with the same world.
    void start();

    /// The token must be a number, a colon and letters. A bot may have no username. Throws
    /// std::invalid_argument for a token without a number.
    void addBot(const std::string& token, const std::string& username = {});
    /// Returns the group's id. All existing bots join it in the role that the options name.
    std::int64_t addGroup(const GroupOptions& options = {});
    /// Changes the role of every bot in the group, and sends the bots updates about that.
    void addBotToGroup(std::int64_t group, BotRole role = BotRole::topicAdmin);
    /// Turns the basic group into a supergroup and returns its id.
    std::int64_t migrateGroup(std::int64_t group, bool forum = true);

    /// Returns the message's id.
    std::int64_t userSays(std::int64_t group, const std::string& text, std::int64_t topic = 0);
    std::int64_t userCreatesTopic(std::int64_t group, const std::string& name);
    void userRenamesTopic(std::int64_t group, std::int64_t topic, const std::string& name);
    void deleteTopic(std::int64_t group, std::int64_t topic);

    /// The clock that replies tell of is so far ahead of this computer's.
    void setClock(std::chrono::seconds ahead);

    /// Makes the next calls fail; several faults are queued.
    void failNext(const Fault& fault);
    void clearFaults();

    std::vector<RequestRecord> requests() const;
    void clearRequests();
    std::vector<EventsRecord> events() const;

    /// The groups as the phone shows them; View.h describes the form.
    Json view() const;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace quillon::sandbox
