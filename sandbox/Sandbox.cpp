#include "sandbox/Sandbox.h"

#include "sandbox/Certificate.h"
#include "sandbox/HttpServer.h"
#include "sandbox/View.h"

#include <stdexcept>

namespace quillon::sandbox {

namespace {

constexpr int defaultIconColor = 7322096;

Topic& topicOf(Chat& chat, std::int64_t topic) {
    if (Topic* const found = chat.topic(topic)) return *found;
    throw std::out_of_range{"no such topic"};
}

} // namespace

struct Sandbox::Parts {
    explicit Parts(const Options& options)
        : backend{options.verbose, options.hashFiles},
          certificate{options.tls ? std::make_unique<Certificate>() : nullptr},
          server{backend, certificate.get()},
          port{server.start(options.port)} {}

    Backend backend;
    std::unique_ptr<Certificate> certificate;
    HttpServer server;
    std::uint16_t port;
};

Sandbox::Sandbox(const Options& options) : parts_{std::make_unique<Parts>(options)} {}

Sandbox::~Sandbox() {
    stop();
}

std::string Sandbox::baseUrl() const {
    return (parts_->certificate ? "https://127.0.0.1:" : "http://127.0.0.1:") +
           std::to_string(parts_->port);
}

std::filesystem::path Sandbox::caFile() const {
    return parts_->certificate ? parts_->certificate->file() : std::filesystem::path{};
}

void Sandbox::stop() {
    parts_->backend.setStopping(true);
    parts_->server.stop();
}

void Sandbox::start() {
    parts_->backend.setStopping(false);
    parts_->server.start(parts_->port);
}

void Sandbox::setClock(std::chrono::seconds ahead) {
    parts_->backend.clockAhead = ahead.count();
}

void Sandbox::addBot(const std::string& token, const std::string& username) {
    parts_->backend.withWorld([&](World& world) { world.addBot(token, username); });
}

std::int64_t Sandbox::addGroup(const GroupOptions& options) {
    return parts_->backend.withWorld([&](World& world) { return world.addGroup(options).id; });
}

void Sandbox::addBotToGroup(std::int64_t group, BotRole role) {
    parts_->backend.withWorld(
        [&](World& world) { world.setRoleOfAll(world.knownChat(group), role); });
}

std::int64_t Sandbox::migrateGroup(std::int64_t group, bool forum) {
    return parts_->backend.withWorld(
        [&](World& world) { return world.migrate(world.knownChat(group), forum).id; });
}

std::int64_t Sandbox::userSays(std::int64_t group, const std::string& text, std::int64_t topic) {
    return parts_->backend.withWorld(
        [&](World& world) { return world.userSays(world.knownChat(group), text, topic); });
}

std::int64_t Sandbox::userCreatesTopic(std::int64_t group, const std::string& name) {
    return parts_->backend.withWorld([&](World& world) {
        return world.createTopic(world.knownChat(group), name, defaultIconColor, World::userId).id;
    });
}

void Sandbox::userRenamesTopic(std::int64_t group, std::int64_t topic, const std::string& name) {
    parts_->backend.withWorld([&](World& world) {
        Chat& chat = world.knownChat(group);
        world.renameTopic(chat, topicOf(chat, topic), name, World::userId);
    });
}

void Sandbox::deleteTopic(std::int64_t group, std::int64_t topic) {
    parts_->backend.withWorld(
        [&](World& world) { world.deleteTopic(world.knownChat(group), topic); });
}

void Sandbox::failNext(const Fault& fault) {
    parts_->backend.faults.add(fault);
    // A client with an open connection would not meet the fault before it needs a new one.
    if (fault.kind == FaultKind::closeAtAccept) parts_->server.dropConnections();
}

void Sandbox::clearFaults() {
    parts_->backend.faults.clear();
}

std::vector<RequestRecord> Sandbox::requests() const {
    return parts_->backend.log.records();
}

void Sandbox::clearRequests() {
    parts_->backend.log.clear();
}

std::vector<EventsRecord> Sandbox::events() const {
    return parts_->backend.events();
}

Json Sandbox::view() const {
    return parts_->backend.withWorld(viewJson);
}

} // namespace quillon::sandbox
