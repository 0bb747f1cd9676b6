#include "doctor/Rules.h"

#include "support/Testing.h"

#include <QPromise>

#include <algorithm>
#include <map>

namespace quillon::test {

using namespace std::chrono_literals;
using Outcome = ApiCall::Outcome;
using Way = HttpLook::Outcome;

constexpr Clock::Time now{1'700'000'000s};

ApiCall done(Json result) {
    return {.outcome = Outcome::done, .said = {}, .result = std::move(result)};
}

ApiCall refused(std::string said) {
    return {.outcome = Outcome::refused, .said = std::move(said)};
}

/// A computer on which everything works, with names that are nobody's business.
Facts healthy() {
    Facts facts{.version = "1.0", .stays = true, .home = "/home/anna", .now = now};
    facts.dataFolder = "/home/anna/.local/share/Quillon";
    facts.config.chatId = -100;
    for (Topic& topic : facts.config.topics) {
        topic.name = "Anna's topic";
        topic.threadId = 7;
    }
    facts.system =
        SystemTraits{.desktops = {"xfce"}, .system = "Debian", .libraries = {"Qt 6.4.2"}};
    facts.xServer =
        XServerTraits{.presence = Presence::answers, .tray = true, .clipboardOwned = true};
    facts.compositor = CompositorTraits{.presence = Presence::absent};
    facts.clipboard = ClipboardTraits{
        .way = ClipboardWay::x11,
        .formats = {"text/plain;charset=utf-8", "application/x-office;displayname=\"Anna.ods\""}};
    facts.bus = BusTraits{.bus = Presence::answers, .keyring = true};
    facts.folder = FolderTraits{.exists = true, .writable = true, .room = 9'000'000'000};
    facts.sound = Presence::answers;
    facts.shortcut = HotKeyState{};
    facts.keyring = SecretAnswer::found;
    facts.tokenAtHand = true;
    facts.look = {.outcome = Way::answers, .time = now - 2s};
    facts.bot = done({{"id", 1}, {"username", "annas_bot"}});
    facts.group = done({{"title", "Anna's group"}, {"is_forum", true}});
    facts.membership = done({{"status", "administrator"}, {"can_manage_topics", true}});
    facts.topics = {4, done(true)};
    return facts;
}

Facts onWayland() {
    Facts facts = healthy();
    facts.system->wayland = true;
    facts.xServer = XServerTraits{.presence = Presence::absent};
    facts.compositor = CompositorTraits{.presence = Presence::answers, .layers = true};
    facts.clipboard->way = ClipboardWay::wlrDataControl;
    facts.bus->trayHost = true;
    return facts;
}

/// "keyring failed", a line for each finding that is neither well nor unknown.
std::vector<std::string> named(const Facts& facts) {
    std::vector<std::string> lines;
    for (const Finding& each : findings(facts, Names::hidden)) {
        EXPECT_NE(std::string{each.found.text}, "") << each.check;
        if (each.state == FindingState::failed) lines.push_back(each.check);
        if (each.state == FindingState::warning) lines.push_back(each.check + "?");
    }
    return lines;
}

void withoutToken(Facts& facts) {
    facts.tokenAtHand = false;
    facts.bot = facts.group = facts.membership = {};
    facts.topics = {};
}

void withoutNetwork(Facts& facts, Way way) {
    facts.look = {.outcome = way};
    facts.bot = {.outcome = Outcome::unreachable};
    facts.group = facts.membership = {};
    facts.topics = {};
}

struct Fault {
    const char* fault;
    void (*make)(Facts& facts);
    /// What is named, and nothing else; "?" behind it where it is a warning.
    std::vector<std::string> named;
    bool canSend = false;
};

TEST(Doctor, NamesWhatIsBrokenAndNothingElse) {
    const std::vector<Fault> faults{
        {"nothing", [](Facts&) {}, {}, true},
        {"nothing, on Wayland", [](Facts& facts) { facts = onWayland(); }, {}, true},
        {"no program runs",
         [](Facts& facts) {
             facts.stays = false;
             facts.shortcut.reset();
         },
         {"program?"},
         true},
        {"no display",
         [](Facts& facts) {
             facts.xServer->presence = Presence::absent;
             facts.clipboard = ClipboardTraits{};
             facts.xServer->tray = false;
         },
         {"display"}},
        {"the X server hangs",
         [](Facts& facts) {
             facts.xServer.reset();
             facts.clipboard.reset();
         },
         {"display"}},
        {"the compositor hangs",
         [](Facts& facts) {
             facts = onWayland();
             facts.compositor.reset();
             facts.clipboard.reset();
         },
         {"display"}},
        {"no data-control and no Xwayland",
         [](Facts& facts) {
             facts = onWayland();
             facts.clipboard = ClipboardTraits{};
         },
         {"clipboard"}},
        {"the clipboard's owner hangs",
         [](Facts& facts) { facts.clipboard->formats = {}; },
         {"clipboard"}},
        {"another program has the shortcut",
         [](Facts& facts) { facts.shortcut->kind = HotKeyState::Kind::taken; },
         {"shortcut"},
         true},
        {"no place for the icon",
         [](Facts& facts) { facts.xServer->tray = false; },
         {"tray?"},
         true},
        {"no sound", [](Facts& facts) { facts.sound = Presence::absent; }, {"sound?"}, true},
        {"a data folder that is read only",
         [](Facts& facts) { facts.folder->writable = false; },
         {"data"},
         true},
        {"a full disk", [](Facts& facts) { facts.folder->room = 4096; }, {"data"}, true},
        {"a mount that hangs", [](Facts& facts) { facts.folder.reset(); }, {"data"}, true},
        {"a folder that others read",
         [](Facts& facts) { facts.folder->open = true; },
         {"data?"},
         true},
        {"a program that is gone opens at login",
         [](Facts& facts) { facts.login = LoginItem::Status::notFound; },
         {"login"},
         true},
        {"no session bus",
         [](Facts& facts) {
             facts.bus = BusTraits{.bus = Presence::absent};
             facts.keyring = SecretAnswer::none;
             withoutToken(facts);
         },
         {"keyring"}},
        {"no keyring",
         [](Facts& facts) {
             facts.bus->keyring = false;
             facts.keyring = SecretAnswer::none;
             withoutToken(facts);
         },
         {"keyring"}},
        {"a locked keyring",
         [](Facts& facts) {
             facts.keyring = SecretAnswer::locked;
             withoutToken(facts);
         },
         {"keyring"}},
        {"a silent keyring",
         [](Facts& facts) {
             facts.keyring.reset();
             withoutToken(facts);
         },
         {"keyring"}},
        {"no token, nor anything else",
         [](Facts& facts) {
             facts.config = {};
             facts.keyring = SecretAnswer::absent;
             withoutToken(facts);
         },
         {"keyring"}},
        {"a token in memory alone",
         [](Facts& facts) { facts.keyring = SecretAnswer::none; },
         {"keyring?"},
         true},
        {"a name that is not found",
         [](Facts& facts) { withoutNetwork(facts, Way::noName); },
         {"network"}},
        {"an address that is none",
         [](Facts& facts) {
             withoutNetwork(facts, Way::badAddress);
             facts.bot = refused("QUILLON_BOT_API is not the address of a server.");
         },
         {"network"}},
        {"a proxy that is dead",
         [](Facts& facts) {
             facts.proxyVariable = "https_proxy";
             withoutNetwork(facts, Way::noWay);
         },
         {"network"}},
        {"a stranger's certificate",
         [](Facts& facts) { withoutNetwork(facts, Way::untrusted); },
         {"network"}},
        {"a wrong clock", [](Facts& facts) { facts.look.time = now + 1h; }, {"clock"}, true},
        {"a bot that gets no answer",
         [](Facts& facts) { facts.bot = {.outcome = Outcome::silent}; },
         {"bot"}},
        {"a wrong token",
         [](Facts& facts) { facts.bot = {.outcome = Outcome::badToken}; },
         {"bot"}},
        {"no group", [](Facts& facts) { facts.config.chatId.reset(); }, {"group"}},
        {"a group that is gone",
         [](Facts& facts) {
             facts.group = facts.membership = refused("Bad Request: chat not found");
             facts.topics = {4, facts.group};
         },
         {"group"}},
        {"a group that has become another",
         [](Facts& facts) {
             facts.group = done({{"title", "Anna's group"}});
             facts.topics = {4,
                             refused("Bad Request: group chat was upgraded to a supergroup chat")};
         },
         {"group"}},
        {"topics that are off",
         [](Facts& facts) {
             facts.group.result.erase("is_forum");
             facts.topics = {4, refused("Bad Request: message thread not found")};
         },
         {"topics"}},
        {"no right to manage topics",
         [](Facts& facts) { facts.membership.result["can_manage_topics"] = false; },
         {"rights"},
         true},
        {"a topic that was deleted",
         [](Facts& facts) { facts.topics[1] = refused("Bad Request: message thread not found"); },
         {"topic-images"}},
        {"a topic that is not created",
         [](Facts& facts) { facts.config.topics[3].threadId.reset(); },
         {"topic-videos"}},
        {"words about a topic that nobody knows",
         [](Facts& facts) { facts.topics[0] = refused("Bad Request: something new"); },
         {},
         true},
    };
    for (const Fault& each : faults) {
        Facts facts = healthy();
        each.make(facts);
        EXPECT_THAT(named(facts), testing::ElementsAreArray(each.named)) << each.fault;
        const auto all = findings(facts, Names::hidden);
        EXPECT_EQ(canSend(all), each.canSend) << each.fault;
        EXPECT_EQ(failures(all).empty(), std::ranges::none_of(all, [](const Finding& finding) {
                      return finding.state == FindingState::failed;
                  }));
        for (const Finding& finding : all) {
            const bool mends = *finding.mend.text != '\0';
            const bool wrong =
                finding.state == FindingState::failed || finding.state == FindingState::warning;
            EXPECT_EQ(mends, wrong) << each.fault << ": " << finding.check;
        }
        EXPECT_THAT(findingsJson(all), Not(HasSubstr("nna"))) << "it can be shown to anybody";
    }
    Facts held = healthy();
    held.shortcut->kind = HotKeyState::Kind::taken;
    held.shortcutHolder = "Clipper";
    EXPECT_THAT(failures(findings(held, Names::hidden)),
                ElementsAre(StartsWith("Shortcut: “Clipper” has ")));
    EXPECT_THAT(findingLines(findings(healthy(), Names::told)),
                Contains(HasSubstr("“Anna's group”")));
    EXPECT_THAT(findingsJson(findings(healthy(), Names::hidden)),
                HasSubstr("on offer now: text/plain, application/x-office\""));
}

TEST(Doctor, KnowsWhichVariableNamesTheProxy) {
    using Variables = std::map<std::string, std::string>;
    const auto variable = [](const char* address, Variables set) {
        return proxyVariable(address, [&](const std::string& name) { return set[name]; });
    };
    const char* const telegram = "https://api.telegram.org";
    EXPECT_EQ(variable(telegram, {}), "");
    EXPECT_EQ(variable(telegram, {{"http_proxy", "a:1"}}), "");
    EXPECT_EQ(variable(telegram, {{"HTTPS_PROXY", "a:1"}, {"all_proxy", "b:1"}}), "HTTPS_PROXY");
    EXPECT_EQ(variable("http://localhost:1", {{"HTTP_PROXY", "a:1"}, {"ALL_PROXY", "b:1"}}),
              "ALL_PROXY");
    for (const char* spared : {"*", "local, telegram.org", ".telegram.org", "api.telegram.org"})
        EXPECT_EQ(variable(telegram, {{"all_proxy", "a:1"}, {"no_proxy", spared}}), "") << spared;
    EXPECT_EQ(variable(telegram, {{"all_proxy", "a:1"}, {"no_proxy", "gram.org,"}}), "all_proxy");
}

} // namespace quillon::test
