// Keyring, network, clock, bot, group and topics.
#include "doctor/Verdicts.h"

#include "base/ShownText.h"

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

namespace quillon {

namespace {

using enum FindingState;
using Outcome = ApiCall::Outcome;
using Way = HttpLook::Outcome;

/// A clock that is wrong by less is told by nobody; a send takes some of it.
constexpr std::chrono::seconds clockTolerance{60};

Verdict notAsked() {
    return {unknown, {QT_TRANSLATE_NOOP("Doctor", "not asked, for something before it failed")}};
}

/// Any server may answer in Telegram's place, with anything.
Phrase telegramSays(const ApiCall& call) {
    constexpr qsizetype enough = 200; // UTF-16 units; Telegram's own words have less than a hundred
    const QString said = shortened(QString::fromStdString(call.said), enough);
    return {QT_TRANSLATE_NOOP("Doctor", "Telegram says: %1"), {said.toStdString()}};
}

Verdict noAnswer() {
    return {failed,
            {QT_TRANSLATE_NOOP("Doctor", "Telegram does not answer")},
            {QT_TRANSLATE_NOOP("Doctor", "Try again in a moment.")}};
}

bool isDone(const ApiCall& call) {
    return call.outcome == Outcome::done;
}

constexpr const char* checkConnection =
    QT_TRANSLATE_NOOP("Doctor", "Check the internet connection and its firewall.");
constexpr const char* checkProxy = QT_TRANSLATE_NOOP("Doctor", "Correct %1, or take it away.");

/// In the order of HttpLook::Outcome; %1 is the variable that names the proxy.
constexpr VerdictRow wayRows[]{
    {unknown, QT_TRANSLATE_NOOP("Doctor", "could not be looked at"), ""},
    {ok, QT_TRANSLATE_NOOP("Doctor", "the way to Telegram is good"), ""},
    {failed, QT_TRANSLATE_NOOP("Doctor", "libcurl is missing, or too old"),
     QT_TRANSLATE_NOOP("Doctor", "Install libcurl 7.87 or a newer one.")},
    {failed, QT_TRANSLATE_NOOP("Doctor", "QUILLON_BOT_API is not the address of a server"),
     QT_TRANSLATE_NOOP("Doctor", "Correct it, or take it away.")},
    {failed, QT_TRANSLATE_NOOP("Doctor", "the name of the proxy in %1 is not found"), checkProxy},
    {failed, QT_TRANSLATE_NOOP("Doctor", "the server's name is not found"),
     QT_TRANSLATE_NOOP("Doctor", "Check the internet connection and its name server.")},
    {failed, QT_TRANSLATE_NOOP("Doctor", "the proxy in %1 turns the connection away"), checkProxy},
    {failed, QT_TRANSLATE_NOOP("Doctor", "no connection to the server comes about"),
     checkConnection},
    {failed, QT_TRANSLATE_NOOP("Doctor", "the server's certificate is not trusted"),
     QT_TRANSLATE_NOOP("Doctor",
                       "Install ca-certificates. Where a proxy reads along, SSL_CERT_FILE can name "
                       "its certificate.")},
    {failed,
     QT_TRANSLATE_NOOP("Doctor",
                       "by this computer's clock, the server's certificate is out of its time"),
     QT_TRANSLATE_NOOP("Doctor", "Set the clock.")},
    {failed, QT_TRANSLATE_NOOP("Doctor", "no encryption can be agreed with the server"),
     checkConnection},
    {failed, QT_TRANSLATE_NOOP("Doctor", "no answer in time"), checkConnection},
};

struct SaidRow {
    /// A part of what Telegram says.
    std::string_view part;
    const char* found;
    const char* mend;
};

constexpr const char* deleted = QT_TRANSLATE_NOOP("Doctor", "it was deleted on the phone");
constexpr const char* createAgain =
    QT_TRANSLATE_NOOP("Doctor", "Create it again: quillon create-topics");

constexpr SaidRow topicRows[]{
    {"message thread not found", deleted, createAgain},
    {"TOPIC_ID_INVALID", deleted, createAgain},
    {"TOPIC_DELETED", deleted, createAgain},
    {"TOPIC_CLOSED", QT_TRANSLATE_NOOP("Doctor", "it is closed"),
     QT_TRANSLATE_NOOP("Doctor", "Reopen it on the phone.")},
    {"rights", QT_TRANSLATE_NOOP("Doctor", "the bot may not write in it"),
     QT_TRANSLATE_NOOP("Doctor", "Make the bot an admin of the group.")},
};

/// Telegram's words for a group that has a new id since it became a supergroup.
bool hasMoved(const Facts& facts) {
    constexpr std::string_view words = "upgraded to a supergroup";
    const auto says = [&](const ApiCall& call) { return call.said.find(words) != call.said.npos; };
    return says(facts.group) || std::ranges::any_of(facts.topics, says);
}

/// What the keyring said, where there is one that can be asked.
Verdict keyringAnswer(const Facts& facts) {
    switch (facts.keyring.value_or(SecretAnswer::none)) {
    case SecretAnswer::found:
        if (facts.tokenAtHand)
            return {ok, {QT_TRANSLATE_NOOP("Doctor", "answers, and has the bot's token")}};
        break;
    case SecretAnswer::locked:
        return {failed,
                {QT_TRANSLATE_NOOP("Doctor", "it is locked")},
                {QT_TRANSLATE_NOOP("Doctor", "Unlock it, and try again.")}};
    case SecretAnswer::absent:
        return {failed,
                {QT_TRANSLATE_NOOP("Doctor", "it answers, but has no bot's token")},
                {QT_TRANSLATE_NOOP("Doctor", "Connect your bot: quillon connect")}};
    case SecretAnswer::none:
        break;
    }
    return {failed,
            {QT_TRANSLATE_NOOP("Doctor", "it does not answer")},
            {QT_TRANSLATE_NOOP("Doctor", "End its service, or log out and in again.")}};
}

} // namespace

Verdict keyringVerdict(const Facts& facts, Names /*names*/) {
    if (facts.tokenAtHand && facts.keyring != SecretAnswer::found) {
        return {warning,
                {QT_TRANSLATE_NOOP("Doctor", "it gives no token; the bot's is in memory until "
                                             "Quillon ends")},
                {QT_TRANSLATE_NOOP("Doctor", "Unlock it, or connect your bot again.")}};
    }
    if (!facts.bus || facts.bus->bus != Presence::answers) {
        return {failed,
                {QT_TRANSLATE_NOOP("Doctor", "no session bus answers, by which it is reached")},
                {QT_TRANSLATE_NOOP("Doctor", "Run Quillon in your desktop's session, where "
                                             "DBUS_SESSION_BUS_ADDRESS names the bus.")}};
    }
    if (!facts.bus->keyring) {
        return {
            failed,
            {QT_TRANSLATE_NOOP("Doctor", "there is none")},
            {QT_TRANSLATE_NOOP("Doctor", "Install gnome-keyring or KWallet, and log in again.")}};
    }
    return keyringAnswer(facts);
}

Verdict networkVerdict(const Facts& facts, Names /*names*/) {
    const Way way = facts.look.outcome;
    const bool proxy = !facts.proxyVariable.empty();
    if (proxy && way == Way::answers) {
        return {
            ok,
            {QT_TRANSLATE_NOOP("Doctor", "the way to Telegram is good, through the proxy in %1"),
             {facts.proxyVariable}}};
    }
    if (proxy && way == Way::noWay) {
        return {
            failed,
            {QT_TRANSLATE_NOOP("Doctor", "the proxy in %1 does not answer"), {facts.proxyVariable}},
            {checkProxy, {facts.proxyVariable}}};
    }
    const VerdictRow& row = wayRows[static_cast<std::size_t>(way)];
    return {row.state, {row.found, {facts.proxyVariable}}, {row.mend, {facts.proxyVariable}}};
}

Verdict clockVerdict(const Facts& facts, Names /*names*/) {
    if (!facts.look.time)
        return {unknown, {QT_TRANSLATE_NOOP("Doctor", "the server did not tell its time")}};
    const auto ahead =
        std::chrono::duration_cast<std::chrono::seconds>(facts.now - *facts.look.time);
    if (std::chrono::abs(ahead) <= clockTolerance)
        return {ok, {QT_TRANSLATE_NOOP("Doctor", "it agrees with the server's")}};
    const auto minutes = std::chrono::duration_cast<std::chrono::minutes>(std::chrono::abs(ahead));
    return {failed,
            {ahead.count() > 0 ? QT_TRANSLATE_NOOP("Doctor", "it is %1 min ahead of the server's")
                               : QT_TRANSLATE_NOOP("Doctor", "it is %1 min behind the server's"),
             {std::to_string(minutes.count())}},
            {QT_TRANSLATE_NOOP("Doctor", "Set the clock.")}};
}

Verdict botVerdict(const Facts& facts, Names names) {
    if (facts.look.outcome == Way::badAddress) return notAsked();
    switch (facts.bot.outcome) {
    case Outcome::notMade:
        return notAsked();
    case Outcome::silent:
    case Outcome::unreachable:
        return facts.look.outcome == Way::answers ? noAnswer() : notAsked();
    case Outcome::badToken:
        return {failed,
                {QT_TRANSLATE_NOOP("Doctor", "Telegram does not accept its token")},
                {QT_TRANSLATE_NOOP("Doctor", "Get its token from @BotFather, and connect it: "
                                             "quillon connect")}};
    case Outcome::refused:
        return {failed,
                telegramSays(facts.bot),
                {QT_TRANSLATE_NOOP("Doctor", "Try again in a moment.")}};
    case Outcome::done:
        break;
    }
    const auto name = textMember(facts.bot.result, "username");
    if (names == Names::told && name) return {ok, {"@%1", {*name}}};
    return {ok, {QT_TRANSLATE_NOOP("Doctor", "Telegram accepts its token")}};
}

Verdict groupVerdict(const Facts& facts, Names names) {
    constexpr const char* addAgain = QT_TRANSLATE_NOOP(
        "Doctor", "Add the bot to the group, write “hi” there, and: quillon find-group");
    if (!isDone(facts.bot)) return notAsked();
    if (!facts.config.chatId)
        return {failed, {QT_TRANSLATE_NOOP("Doctor", "it is not found yet")}, {addAgain}};
    if (hasMoved(facts)) {
        return {failed,
                {QT_TRANSLATE_NOOP("Doctor", "it has become a supergroup, which is another one")},
                {QT_TRANSLATE_NOOP("Doctor", "Write “hi” there, and: quillon find-group")}};
    }
    if (facts.group.outcome == Outcome::refused)
        return {failed, telegramSays(facts.group), {addAgain}};
    if (!isDone(facts.group)) return noAnswer();
    const auto title = textMember(facts.group.result, "title");
    if (names == Names::told && title) return {ok, {"“%1”", {*title}}};
    return {ok, {QT_TRANSLATE_NOOP("Doctor", "the bot reaches it")}};
}

Verdict forumVerdict(const Facts& facts, Names names) {
    if (groupVerdict(facts, names).state != ok) return notAsked();
    if (isTrue(facts.group.result, "is_forum"))
        return {ok, {QT_TRANSLATE_NOOP("Doctor", "they are switched on")}};
    return {
        failed,
        {QT_TRANSLATE_NOOP("Doctor", "they are switched off in the group")},
        {QT_TRANSLATE_NOOP("Doctor", "Switch on Topics in the group's settings on the phone.")}};
}

Verdict rightsVerdict(const Facts& facts, Names names) {
    if (groupVerdict(facts, names).state != ok || !isDone(facts.membership)) return notAsked();
    const Json& member = facts.membership.result;
    if (isTrue(member, "can_manage_topics") || textMember(member, "status") == "creator")
        return {ok, {QT_TRANSLATE_NOOP("Doctor", "the bot may manage topics")}};
    return {failed,
            {QT_TRANSLATE_NOOP("Doctor", "the bot may not manage topics")},
            {QT_TRANSLATE_NOOP("Doctor", "Make it an admin with “Manage Topics”.")}};
}

Verdict topicVerdict(const Facts& facts, std::size_t index) {
    if (forumVerdict(facts, Names::hidden).state != ok) return notAsked();
    if (!facts.config.topics.at(index).threadId) {
        return {failed,
                {QT_TRANSLATE_NOOP("Doctor", "it is not created yet")},
                {QT_TRANSLATE_NOOP("Doctor", "Create it: quillon create-topics")}};
    }
    const ApiCall call = index < facts.topics.size() ? facts.topics[index] : ApiCall{};
    if (isDone(call)) return {ok, {QT_TRANSLATE_NOOP("Doctor", "it is there")}};
    if (call.outcome != Outcome::refused)
        return {unknown, {QT_TRANSLATE_NOOP("Doctor", "Telegram does not answer")}};
    const auto row = std::ranges::find_if(topicRows, [&](const SaidRow& each) {
        return call.said.find(each.part) != call.said.npos;
    });
    if (row == std::end(topicRows)) return {unknown, telegramSays(call)};
    return {failed, {row->found}, {row->mend}};
}

} // namespace quillon
