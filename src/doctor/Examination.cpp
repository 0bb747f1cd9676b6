#include "doctor/Examination.h"

#include "base/Environment.h"
#include "doctor/Rules.h"
#include "doctor/Within.h"
#include "platform/FileTree.h"
#include "platform/Pasteboard.h"
#include "platform/Platform.h"
#include "state/Store.h"
#include "telegram/Url.h"

#include <array>
#include <deque>
#include <utility>

namespace quillon {

namespace {

using namespace std::chrono_literals;
using Outcome = ApiCall::Outcome;

// One after another these make less than 10 seconds; everything else goes on beside them.
constexpr auto keyringLimit = 3s;
constexpr auto botLimit = 3s;
constexpr auto groupLimit = 3s;

/// For what is on this machine. A clipboard's owner has a second of this.
constexpr auto nearLimit = 3s;
constexpr auto networkLimit = 5s;

constexpr std::array<PhysicalKey, allShortcutChoices.size()> physicalKeys{
    PhysicalKey::v, PhysicalKey::p, PhysicalKey::c};

/// What is known without asking anybody.
Facts knownFacts(const Platform& platform, const Store& store, bool stays) {
    const Bundle& bundle = platform.bundle;
    const bool updatesItself = bundle.isApplication() && bundle.text("SUFeedURL");
    Facts facts{.config = store.config(),
                .version = bundle.shortVersion(),
                .stays = stays,
                .home = platform.folders.home,
                .dataFolder = platform.dataFolder};
    facts.login = platform.loginItem.status();
    facts.updatesItself = updatesItself;
    facts.replaceable = updatesItself && platform.trees.isDeletable(bundle.url);
    facts.proxyVariable = proxyVariable(platform.botApi, [](const std::string& variable) {
        return environment(variable.c_str()).value_or("");
    });
    if (stays) facts.shortcut = store.shortcut();
    return facts;
}

/// libcurl would take some texts for addresses that a client of the Bot API does not take.
QFuture<HttpLook> lookAtServer(Platform& platform) {
    if (isServerAddress(platform.botApi))
        return platform.http.look(platform.botApi + "/", networkLimit);
    return QtFuture::makeReadyFuture(HttpLook{.outcome = HttpLook::Outcome::badAddress});
}

QCoro::Task<ClipboardTraits> ownClipboard(Pasteboard& pasteboard) {
    ClipboardTraits traits;
    traits.formats = co_await pasteboard.formats();
    traits.way = pasteboard.way();
    co_return traits;
}

QCoro::Task<ApiCall> called(Telegram client, std::string method, Json parameters) {
    try {
        Json result = co_await client.call(std::move(method), std::move(parameters));
        co_return ApiCall{.outcome = Outcome::done, .said = {}, .result = std::move(result)};
    } catch (const TelegramError& error) {
        using Cause = TelegramError::Cause;
        const Outcome outcome = error.cause == Cause::unreachable ? Outcome::unreachable
                                : error.cause == Cause::token     ? Outcome::badToken
                                                                  : Outcome::refused;
        co_return ApiCall{.outcome = outcome, .said = error.message};
    }
}

const ApiCall silentCall{.outcome = Outcome::silent};

/// Asks the group and the topics, all at once. The action "cancel" ends a "typing…" that nobody
/// sees, and needs what a message needs: the topic, and the right to write in it.
QCoro::Task<> askGroup(Facts& facts, Clock& clock, Telegram client) {
    if (!facts.config.chatId) co_return;
    const std::int64_t chat = *facts.config.chatId;
    const auto me = integerMember(facts.bot.result, "id").value_or(0);
    std::deque<std::pair<ApiCall*, Within<ApiCall>>> calls;
    const auto ask = [&](ApiCall& call, const char* method, Json parameters) {
        calls.emplace_back(&call, Within<ApiCall>{clock, groupLimit,
                                                  called(client, method, std::move(parameters))});
    };
    ask(facts.group, "getChat", {{"chat_id", chat}});
    ask(facts.membership, "getChatMember", {{"chat_id", chat}, {"user_id", me}});
    facts.topics.resize(facts.config.topics.size());
    for (std::size_t index = 0; index < facts.topics.size(); ++index) {
        const auto thread = facts.config.topics[index].threadId;
        if (!thread) continue;
        ask(facts.topics[index], "sendChatAction",
            {{"chat_id", chat}, {"message_thread_id", *thread}, {"action", "cancel"}});
    }
    for (const auto& each : calls) {
        std::optional<ApiCall> told = co_await each.second.result();
        *each.first = std::move(told).value_or(silentCall);
    }
}

/// From the keyring to the topics: each step needs the one before.
QCoro::Task<Facts> askTelegram(Facts facts, Platform& platform, Store& store) {
    const Within<SecretAnswer> asked{platform.clock, keyringLimit,
                                     platform.secrets.find(botTokenItem())};
    const Within<std::optional<Telegram>> fetched{platform.clock, keyringLimit,
                                                  store.clientAtHand()};
    facts.keyring = co_await asked.result();
    std::optional<std::optional<Telegram>> client = co_await fetched.result();
    if (!client || !*client) co_return facts;
    facts.tokenAtHand = true;
    const Within<ApiCall> me{platform.clock, botLimit, called(**client, "getMe", Json::object())};
    std::optional<ApiCall> bot = co_await me.result();
    facts.bot = std::move(bot).value_or(silentCall);
    if (facts.bot.outcome == Outcome::done) {
        QCoro::Task<> asking = askGroup(facts, platform.clock, **client);
        co_await asking;
    }
    co_return facts;
}

PhysicalKey physicalKey(const Config& config) {
    return physicalKeys.at(static_cast<std::size_t>(config.shortcut));
}

/// The trial grabs the keys for a moment, which only a server that answers can be asked.
void tryShortcut(Facts& facts, const Surroundings& surroundings) {
    if (facts.stays || !facts.xServer || facts.xServer->presence != Presence::answers) return;
    const std::optional<bool> free = surroundings.isFree(physicalKey(facts.config));
    if (!free) return;
    facts.shortcut =
        HotKeyState{.kind = *free ? HotKeyState::Kind::bound : HotKeyState::Kind::taken};
}

} // namespace

QCoro::Task<Facts> examine(Platform& platform, Store& store, const Surroundings& surroundings,
                           bool stays) {
    Clock& clock = platform.clock;
    const Within<SystemTraits> system{clock, nearLimit, surroundings.system()};
    const Within<XServerTraits> xServer{clock, nearLimit, surroundings.xServer()};
    const Within<CompositorTraits> compositor{clock, nearLimit, surroundings.compositor()};
    const Within<BusTraits> bus{clock, nearLimit, surroundings.bus()};
    const Within<FolderTraits> folder{clock, nearLimit, surroundings.folder(platform.dataFolder)};
    const Within<Presence> sound{clock, nearLimit, surroundings.sound()};
    const Within<std::string> holder{clock, nearLimit,
                                     surroundings.holder(physicalKey(store.config()))};
    const Within<HttpLook> look{clock, networkLimit, lookAtServer(platform)};
    QCoro::Task<ClipboardTraits> reading = ownClipboard(platform.pasteboard);
    const Within<ClipboardTraits> clipboard =
        stays ? Within<ClipboardTraits>{clock, nearLimit, std::move(reading)}
              : Within<ClipboardTraits>{clock, nearLimit, surroundings.clipboard()};
    QCoro::Task<Facts> asking = askTelegram(knownFacts(platform, store, stays), platform, store);
    Facts facts = co_await asking;
    facts.system = co_await system.result();
    facts.xServer = co_await xServer.result();
    facts.compositor = co_await compositor.result();
    facts.clipboard = co_await clipboard.result();
    facts.bus = co_await bus.result();
    facts.folder = co_await folder.result();
    facts.sound = co_await sound.result();
    std::optional<std::string> held = co_await holder.result();
    facts.shortcutHolder = std::move(held).value_or("");
    const std::optional<HttpLook> seen = co_await look.result();
    facts.look = seen.value_or(HttpLook{.outcome = HttpLook::Outcome::silent});
    facts.now = platform.clock.now();
    tryShortcut(facts, surroundings);
    co_return facts;
}

} // namespace quillon
