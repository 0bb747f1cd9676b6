#include "SendTest.h"

#include "send/UndoOutcome.h"
#include "support/Files.h"

namespace quillon::test {

namespace {

constexpr const char* nothingText = "There is nothing to take back.";
constexpr const char* refusedText = "Bad Request: message can't be deleted";

struct Undo : SendTest {
    UndoOutcome undo() { return await(computer.store->undo()); }
    std::string problem() { return undo().problem.value_or(""); }

    void sendThree() {
        computer.send(files({file("a.txt"), file("b.mp4"), file("c.jpg")}));
        computer.clear();
    }
    /// How many messages of sends the phone shows.
    std::size_t onPhone() const {
        std::size_t count = 0;
        for (const char* key : {"notes", "images", "files", "videos"})
            count += computer.messages(key).size();
        return count;
    }
    std::vector<bool> takenBack() const {
        std::vector<bool> marks;
        for (const Sent& entry : computer.store->history())
            marks.push_back(entry.takenBack);
        return marks;
    }
};

TEST_F(Undo, DeletesEveryMessageOfTheLastSendAndMarksItsEntries) {
    computer.send(text("earlier"));
    computer.send(text(repeated("a", 8'000)));
    EXPECT_EQ(computer.store->lastSend().count(), 3U);
    EXPECT_EQ(modeOf(computer.path("undo.json")), fs::perms{0600});
    const std::string history = computer.content("history.json");
    computer.restart();
    computer.clear();
    const UndoOutcome outcome = undo();
    EXPECT_TRUE(outcome.ok());
    EXPECT_EQ(outcome.gone, 3U);
    EXPECT_THAT(computer.methods(), ElementsAre("deleteMessages"));
    EXPECT_EQ(onPhone(), 1U);
    EXPECT_THAT(banners(), ElementsAre("Took back 3 messages"));
    EXPECT_THAT(computer.sounds.played, ElementsAre(Sound::pop));
    EXPECT_EQ(computer.content("history.json"), history) << "its format has no place for marks";
    computer.restart();
    EXPECT_THAT(takenBack(), ElementsAre(true, false));
    computer.clear();
    EXPECT_EQ(problem(), nothingText);
    EXPECT_THAT(computer.methods(), IsEmpty());

    sendThree();
    EXPECT_EQ(undo().gone, 3U);
    EXPECT_EQ(onPhone(), 1U);
    EXPECT_THAT(takenBack(), ElementsAre(true, true, true, true, false));
}

TEST_F(Undo, CountsWhatIsGoneAlready) {
    computer.send(text("a"));
    computer.sandbox.deleteMessage(computer.group, computer.store->lastSend().items[0].ids[0]);
    const UndoOutcome outcome = undo();
    EXPECT_TRUE(outcome.ok());
    EXPECT_EQ(outcome.gone, 1U);
    EXPECT_THAT(takenBack(), ElementsAre(true));
    computer.send(text("b"));
    computer.sandbox.deleteTopic(computer.group, *computer.topic("notes").threadId);
    EXPECT_TRUE(undo().ok());
}

TEST_F(Undo, NamesWhatTelegramKeeps) {
    sendThree();
    computer.sandbox.failNext(refusal("deleteMessages", 400, refusedText));
    computer.sandbox.failNext(refusal("deleteMessage", 400, refusedText));
    const UndoOutcome outcome = undo();
    EXPECT_EQ(outcome.gone, 2U);
    EXPECT_THAT(outcome.kept, ElementsAre(UndoOutcome::Kept{"a.txt", refusedText}));
    EXPECT_THAT(banners(), ElementsAre("Took back only 2: " + std::string{refusedText}));
    EXPECT_THAT(computer.sounds.played, ElementsAre(Sound::basso));
    EXPECT_THAT(takenBack(), ElementsAre(true, true, false));
    EXPECT_EQ(undo().gone, 1U) << "it may be asked about again";

    // Telegram's clock, and no longer this one, says when it is too late.
    sendThree();
    computer.sandbox.pass(48h);
    EXPECT_THAT(undo().kept, SizeIs(3));
    EXPECT_THAT(banners(), ElementsAre(refusedText));
}

TEST_F(Undo, TriesAgainWhatItCouldNotAskAbout) {
    sendThree();
    const std::pair<std::function<void()>, std::string> failures[]{
        {[this] { computer.http.down = true; }, "Couldn't reach Telegram."},
        {[this] { computer.sandbox.failNext(refusal("deleteMessages", 429, "Too Many Requests")); },
         "Too Many Requests"},
        {[this] { computer.sandbox.addBotToGroup(computer.group, sandbox::BotRole::kicked); },
         "Forbidden: bot was kicked"},
    };
    for (const auto& [fail, sentence] : failures) {
        fail();
        EXPECT_THAT(problem(), StartsWith(sentence));
        EXPECT_THAT(banners().back(), StartsWith(sentence));
        computer.http.down = false;
        EXPECT_EQ(onPhone(), 3U);
        computer.restart();
    }
    computer.sandbox.addBotToGroup(computer.group);
    // A part of them goes, and then the network.
    computer.sandbox.failNext(refusal("deleteMessages", 400, refusedText));
    computer.sandbox.failNext(onlyFor("deleteMessage", fault(sandbox::FaultKind::delay, 1ms)));
    computer.sandbox.failNext(onlyFor("deleteMessage", flood(1)));
    auto undoing = computer.store->undo();
    ASSERT_TRUE(waitUntil([this] { return computer.clock.pending() == 2; }));
    EXPECT_EQ(problem(), "The last send is being taken back already.");
    computer.http.down = true;
    computer.clock.advance(2s);
    const UndoOutcome outcome = await(std::move(undoing));
    EXPECT_EQ(outcome.gone, 1U);
    EXPECT_THAT(undoText(outcome), StartsWith("Took back only 1: Couldn't reach Telegram."));
    computer.http.down = false;
    computer.restart();
    EXPECT_EQ(undo().gone, 2U);
}

TEST_F(Undo, EndsAfter48Hours) {
    sendThree();
    computer.clock.advance(48h);
    EXPECT_FALSE(computer.store->canUndo());
    EXPECT_THAT(problem(), StartsWith("The last send is more than 48 hours old."));
    EXPECT_THAT(computer.methods(), IsEmpty());
    EXPECT_THAT(computer.sounds.played, IsEmpty());
    sendThree();
    computer.clock.advance(48h - 1s);
    EXPECT_EQ(undo().gone, 3U);
}

TEST_F(Undo, TakesBackWhatArrivedOfASendThatFailed) {
    computer.send(text("earlier"));
    computer.sandbox.failNext(onlyFor("sendMessage", flood(1)));
    computer.pasteboard.copy(text(repeated("a", 8'000)));
    auto sending = computer.store->sendClipboard(Trigger::button);
    ASSERT_TRUE(waitUntil([this] { return computer.clock.pending() == 2; }));
    EXPECT_THAT(problem(), StartsWith("A send is still running."));
    EXPECT_EQ(computer.store->lastSend().count(), 0U) << "not the one before";
    computer.sandbox.failNext(onlyFor("sendMessage", fault(sandbox::FaultKind::delay, 1ms)));
    computer.sandbox.failNext(refusal("sendMessage", 400, "no"));
    computer.clock.advance(2s);
    await(std::move(sending));
    EXPECT_EQ(computer.store->history().front().error, "no");
    EXPECT_EQ(undo().gone, 1U);
    EXPECT_EQ(onPhone(), 1U) << "the earlier one";
    EXPECT_TRUE(computer.store->history().front().takenBack);

    computer.http.down = true;
    computer.send(text("never arrives"));
    EXPECT_EQ(problem(), "Nothing of the last send has arrived.");
}

TEST_F(Undo, NeedsNoIdForASendToSucceed) {
    for (const Json& result : {Json(true), Json{{"message_id", "5"}}, Json{{"message_id", -5}}}) {
        computer.sandbox.failNext(answer("sendMessage", result));
        computer.send(text("a"));
        EXPECT_FALSE(computer.store->history().front().error);
        EXPECT_EQ(problem(), nothingText);
    }
}

TEST_F(Undo, IsForgottenWithTheBot) {
    for (const bool whileSending : {false, true}) {
        SCOPED_TRACE(whileSending);
        ConnectedComputer mine;
        if (whileSending) mine.sandbox.failNext(onlyFor("sendMessage", flood(1)));
        mine.pasteboard.copy(text("a"));
        auto sending = mine.store->sendClipboard(Trigger::button);
        EXPECT_TRUE(waitUntil([&] { return mine.clock.pending() == (whileSending ? 2 : 0); }));
        if (!whileSending) await(std::move(sending));
        mine.store->forgetBot();
        mine.clock.advance(2s);
        if (whileSending) await(std::move(sending));
        EXPECT_EQ(mine.store->lastSend().count(), 0U);
        EXPECT_EQ(decodeUndo(mine.content("undo.json")), UndoRecord{});
    }
    sendThree();
    computer.sandbox.addBot("8:second", "second_bot");
    await(computer.store->connectBot("8:second"));
    EXPECT_EQ(problem(), nothingText) << "another bot may not delete it";
}

TEST_F(Undo, LeavesASendThatBeginsMeanwhileAlone) {
    sendThree();
    computer.sandbox.failNext(onlyFor("deleteMessages", flood(1)));
    auto undoing = computer.store->undo();
    ASSERT_TRUE(waitUntil([this] { return computer.clock.pending() == 2; }));
    computer.send(text("new"));
    computer.clock.advance(2s);
    EXPECT_EQ(await(std::move(undoing)).gone, 3U);
    EXPECT_THAT(takenBack(), ElementsAre(false, true, true, true));
    EXPECT_EQ(undo().gone, 1U);
}

} // namespace

} // namespace quillon::test
