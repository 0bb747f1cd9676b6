#include "EndToEndTest.h"

#include <csignal>

namespace quillon::test {

namespace {

using namespace std::chrono_literals;
using sandbox::Fault;
using sandbox::FaultKind;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* unreachableText =
    "Couldn't reach Telegram. Check your internet connection.\n";
constexpr const char* refusedText = "Telegram didn't accept that bot token.\n";
constexpr const char* malformedText = "That bot token doesn't look right.\n";

std::string emptyReply(int status) {
    return "Telegram sent an empty reply (error " + std::to_string(status) +
           "). Try again in a moment.\n";
}

/// Answers with a status and nothing else.
Fault nothing(int status) {
    Fault nothing = fault(FaultKind::empty);
    nothing.status = status;
    return nothing;
}

} // namespace

TEST_F(EndToEnd, TellsHowACallFailed) {
    const std::pair<Fault, std::string> cases[] = {
        {refusal("getMe", 401, "Unauthorized"), refusedText},
        {refusal("getMe", 404, "Not Found"), "Not Found\n"},
        {nothing(404), refusedText},
        {nothing(200), emptyReply(200)},
        {fault(FaultKind::html502), emptyReply(502)},
        {fault(FaultKind::truncatedJson), emptyReply(200)},
        {fault(FaultKind::jsonList), emptyReply(200)},
        {answer("getMe", 400, R"({"ok":false})"), "Telegram said no.\n"},
        {refusal("getMe", 400, "line\nbreak \x1b[31m <b>"), "line\uFFFDbreak \uFFFD[31m <b>\n"},
        {flood(60), "Too Many Requests: retry after 60\n"},
        {fault(FaultKind::closeAtAccept, 9), unreachableText},
        {fault(FaultKind::cutBeforeBody, 9), unreachableText},
        {fault(FaultKind::cutAfterBody, 9), unreachableText},
        {fault(FaultKind::cutReply, 9), unreachableText},
    };
    for (const auto& [fault, message] : cases) {
        phone.clearFaults();
        phone.failNext(fault);
        const Finished run = quillon.run({"connect"}, token);
        EXPECT_EQ(run.code, 1) << fault.name();
        EXPECT_EQ(run.err, message) << fault.name();
        EXPECT_EQ(run.out, "") << fault.name();
    }
    phone.stop();
    EXPECT_EQ(quillon.run({"connect"}, token).err, unreachableText);
    EXPECT_THAT(quillon.run({"status", "--json"}).out, testing::HasSubstr(R"("tokenSaved":false)"));
}

TEST_F(EndToEnd, RefusesTokensThatAreNone) {
    const std::string noToken =
        "That doesn't look like a bot token. It looks like 123456:ABC-DEF…\n";
    const std::pair<std::string, std::string> cases[] = {
        {"", noToken},
        {"hello\n", noToken},
        {"1:a b\n", malformedText},
        {"1:a\tb", malformedText},
        {"1:a\r2\n", malformedText},
        {"12:unknown\n", refusedText},
    };
    for (const auto& [input, message] : cases) {
        const Finished run = quillon.run({"connect"}, input);
        EXPECT_EQ(run.code, 1) << input;
        EXPECT_EQ(run.err, message) << input;
    }
    EXPECT_THAT(phone.requests(), SizeIs(1)) << "only the unknown token";
}

TEST_F(EndToEnd, WaitsWhenTelegramAsksForIt) {
    phone.failNext(flood(1));
    const Finished run = quillon.run({"connect"}, token);
    EXPECT_EQ(run.code, 0) << run.err;
    const auto requests = phone.requests();
    ASSERT_THAT(requests, SizeIs(2));
    EXPECT_GE(requests[1].time - requests[0].time, 2s) << "a second is added to what was asked";
}

TEST_F(EndToEnd, ReportsItemsThatFailAndSendsTheOthers) {
    setUp();
    clipboard.copyFiles(
        {"file://" + file("a", "1"), "file:///nowhere/b", "file://" + file("c", "1")});
    phone.failNext(refusal("sendDocument", 400, "Bad Request: TOPIC_CLOSED"));
    const Finished run = quillon.run({"send"});
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, "failed\t📎 Files\ta\nfailed\t📎 Files\tb\nsent\t📎 Files\tc\n");
    EXPECT_EQ(run.err, "Bad Request: TOPIC_CLOSED\nCouldn't read b\n");
}

TEST_F(EndToEnd, FailsClearlyWithoutAKeyring) {
    Program bare = quillon;
    bare.environment.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    const Finished run = bare.run({"connect"}, token);
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.err, "The bot answers, but no keyring could keep its token.\n");
    EXPECT_LT(run.took, 20s);
    bare.environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                            QStringLiteral("unix:path=/nonexistent"));
    EXPECT_EQ(bare.run({"connect"}, token).code, 1);
    EXPECT_EQ(bare.run({"status"}).code, 0);
}

TEST_F(EndToEnd, FailsClearlyWithoutADisplay) {
    setUp();
    Program blind = quillon;
    for (const QString& display : {QString{}, QStringLiteral(":987654")}) {
        blind.environment.insert(QStringLiteral("DISPLAY"), display);
        const Finished run = blind.run({"send"});
        EXPECT_EQ(run.code, 1);
        EXPECT_EQ(run.err, "There is no desktop to work on: no X server answers.\n");
    }
    EXPECT_EQ(blind.run({"status"}).code, 0) << "needs no display";
}

TEST_F(EndToEnd, GivesUpOnAnOwnerThatHangs) {
    setUp();
    clipboard.copyText("never seen");
    ASSERT_EQ(::kill(clipboard.owner(), SIGSTOP), 0);
    const Finished run = quillon.run({"send"});
    ::kill(clipboard.owner(), SIGCONT);
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.err, "The clipboard is empty\n");
    EXPECT_LT(run.took, 10s);
    EXPECT_THAT(phone.requests(), IsEmpty());
}

TEST_F(EndToEnd, KeepsWhatWasSavedWhenItIsKilled) {
    setUp();
    clipboard.copyText("before");
    ASSERT_EQ(quillon.run({"send"}).code, 0);
    ASSERT_TRUE(waitUntil([] { return Program::processes().empty(); }));
    const std::string status = quillon.run({"status"}).out;
    const std::string history = quillon.run({"history"}).out;

    clipboard.copyText(std::string(8000, 'a'));
    for (int round = 0; round < 3; ++round) {
        phone.clearRequests();
        phone.failNext(fault(FaultKind::hang));
        const auto sending = quillon.start({"send"});
        EXPECT_TRUE(waitUntil([this] { return !phone.requests().empty(); }));
        ASSERT_EQ(::kill(static_cast<pid_t>(sending->processId()), SIGKILL), 0);
        sending->waitForFinished();
        EXPECT_TRUE(waitUntil([] { return Program::processes().empty(); }))
            << "its child goes with it";
    }
    EXPECT_EQ(quillon.run({"status"}).out, status);
    EXPECT_EQ(quillon.run({"history"}).out, history);
    EXPECT_EQ(quillon.run({"send"}).code, 0);
    EXPECT_THAT(Json::parse(quillon.run({"history", "--json"}).out), SizeIs(2));
}

} // namespace quillon::test
