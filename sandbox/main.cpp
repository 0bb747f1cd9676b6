// quillon-sandbox: the local Bot API as a program, for demonstrations and scripts.
#include "sandbox/Sandbox.h"

#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <pthread.h>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace quillon::sandbox;

const std::string usage = R"(Usage: quillon-sandbox [OPTION]…
A local stand-in for the Telegram Bot API.

  --port N            listen on 127.0.0.1:N (default: any free port)
  --tls               serve HTTPS with a certificate made on the spot
  --token-file PATH   read the bot's token from a file (default: a demo token)
  --token TOKEN       the bot's token; visible to other users, so for made-up tokens only
  --username NAME     the bot's user name (default: quillon_demo_bot; "" for none)
  --group TITLE       a group with topics and the bot as its administrator; may be repeated
  --role ROLE         the bot's role in the groups: topic-admin (default), admin, member, absent
  --no-topics         topics are off in the groups
  --hi                the user says "hi" in each group
  --ready-file PATH   write {"base_url","token","ca_file","groups"} there once listening
  --no-hashes         do not compute the SHA-256 of uploads
  --verbose           print one line per request
  --help              print this

Pages for scripts, under /sandbox/: GET view, view.json, requests, events; POST fail, fail/clear,
requests/clear, says, group, group/change, group/migrate, topics/delete, messages/delete, pass,
bot, events/status.

POST /sandbox/fail lets the next calls fail, for example with
{"kind":"retry-after","count":2,"method":"sendMessage","retry_after":3}. It takes
)";

struct Arguments {
    Options options;
    std::string token = Sandbox::demoToken;
    std::string username = "quillon_demo_bot";
    std::vector<std::string> groups;
    GroupOptions group;
    bool hi = false;
    std::filesystem::path readyFile;
    bool help = false;
};

BotRole roleNamed(const std::string& name) {
    static const std::map<std::string, BotRole> roles{{"topic-admin", BotRole::topicAdmin},
                                                      {"admin", BotRole::admin},
                                                      {"member", BotRole::member},
                                                      {"absent", BotRole::absent}};
    return roles.at(name);
}

std::string firstLine(const std::string& path) {
    std::ifstream file{path};
    std::string line;
    if (!std::getline(file, line)) throw std::runtime_error{"cannot read the token file"};
    return line;
}

Arguments parse(const std::vector<std::string>& words) {
    Arguments result;
    const std::map<std::string, std::function<void()>> flags{
        {"--tls", [&] { result.options.tls = true; }},
        {"--no-topics", [&] { result.group.forum = false; }},
        {"--hi", [&] { result.hi = true; }},
        {"--no-hashes", [&] { result.options.hashFiles = false; }},
        {"--verbose", [&] { result.options.verbose = true; }},
        {"--help", [&] { result.help = true; }},
    };
    using Value = const std::string&;
    const std::map<std::string, std::function<void(Value)>> settings{
        {"--port",
         [&](Value v) { result.options.port = static_cast<std::uint16_t>(std::stoi(v)); }},
        {"--token", [&](Value v) { result.token = v; }},
        {"--token-file", [&](Value v) { result.token = firstLine(v); }},
        {"--username", [&](Value v) { result.username = v; }},
        {"--group", [&](Value v) { result.groups.push_back(v); }},
        {"--role", [&](Value v) { result.group.bot = roleNamed(v); }},
        {"--ready-file", [&](Value v) { result.readyFile = v; }},
    };
    for (auto word = words.begin(); word != words.end(); ++word) {
        const auto flag = flags.find(*word);
        const auto setting = settings.find(*word);
        if (flag != flags.end()) {
            flag->second();
        } else if (setting != settings.end() && std::next(word) != words.end()) {
            setting->second(*++word);
        } else {
            throw std::invalid_argument{"unknown or incomplete option " + *word};
        }
    }
    return result;
}

// The file is renamed into place, so that readers never see an unfinished one.
void writeReadyFile(const std::filesystem::path& path, const Json& content) {
    std::filesystem::path fresh = path;
    fresh += ".new";
    std::ofstream{fresh} << dumped(content, 2) << '\n';
    std::filesystem::rename(fresh, path);
}

void serve(const Arguments& arguments, const sigset_t& signals) {
    Sandbox sandbox{arguments.options};
    sandbox.addBot(arguments.token, arguments.username);
    Json groups = Json::array();
    for (const std::string& title : arguments.groups) {
        GroupOptions options = arguments.group;
        options.title = title;
        const auto id = sandbox.addGroup(options);
        if (arguments.hi) sandbox.userSays(id, "hi");
        groups.push_back({{"id", id}, {"title", title}});
    }
    const Json ready{{"base_url", sandbox.baseUrl()},
                     {"token", arguments.token},
                     {"ca_file", sandbox.caFile().string()},
                     {"groups", std::move(groups)}};
    if (!arguments.readyFile.empty()) writeReadyFile(arguments.readyFile, ready);
    std::printf("%s\n", dumped(ready, 2).c_str());
    std::fflush(stdout);
    int signal = 0;
    sigwait(&signals, &signal);
}

} // namespace

int main(int argc, char** argv) {
    // These are blocked before any thread starts, so that only sigwait receives them.
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    try {
        const Arguments arguments = parse({argv + 1, argv + argc});
        if (arguments.help) {
            std::fputs((usage + Fault::help()).c_str(), stdout);
        } else {
            serve(arguments, signals);
        }
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "quillon-sandbox: %s\n", error.what());
        return 1;
    }
}
