// What becomes of the program while its keyring is late, away, or locked.
#include "support/ConnectedComputer.h"

namespace quillon::test {

namespace {

using namespace std::chrono_literals;

using State = Store::KeyringState;

constexpr const char* lockedText = "Your keyring is locked. Unlock it and try again.";
constexpr const char* sentText = "Sent to 📝 Notes & text";
constexpr const char* silentText = "Your keyring doesn't answer. Start or unlock it and try again.";

struct LateKeyring : testing::Test {
    /// What the banner says to a send.
    std::string sending() {
        computer.send({{"UTF8_STRING", "a"}});
        return computer.banner.shown.back().text;
    }

    ConnectedComputer computer;
    std::unique_ptr<Store>& store = computer.store;
    FakeSecrets& secrets = computer.secrets;
};

} // namespace

TEST_F(LateKeyring, IsNotWaitedForAndAnswersWhenItCan) {
    secrets.late = true;
    computer.restart();
    EXPECT_EQ(store->keyring(), State::asked);
    EXPECT_FALSE(store->isReady());
    EXPECT_TRUE(store->mayBeReady());
    EXPECT_EQ(store->keyringProblem(), std::nullopt);
    auto asked = store->keyringAsked();
    computer.clock.advance(5s);
    await(std::move(asked));
    EXPECT_EQ(store->keyringProblem(), silentText);
    EXPECT_TRUE(store->mayBeReady());
    secrets.answer();
    EXPECT_TRUE(waitUntil([this] { return store->isReady(); }));
    EXPECT_EQ(store->keyringProblem(), std::nullopt);
    secrets.late = true;
    computer.restart();
    computer.storeEvents.reset();
    store.reset();
    secrets.answer();
    QCoreApplication::processEvents(); // nobody takes the answer
}

TEST_F(LateKeyring, IsAskedAgainAtEachSend) {
    secrets.available = false;
    computer.restart();
    EXPECT_EQ(sending(), silentText);
    secrets.available = true;
    EXPECT_EQ(sending(), sentText);
    EXPECT_TRUE(store->isReady());
    secrets.available = false;
    EXPECT_EQ(sending(), sentText) << "the token is known by now";
    secrets = {};
    computer.restart();
    EXPECT_FALSE(store->mayBeReady()) << "it says that there is no token";
    EXPECT_EQ(sending(), "Finish setting up Quillon first");
}

TEST_F(LateKeyring, IsNamedWhileItIsLocked) {
    secrets.locked = true;
    computer.restart();
    EXPECT_TRUE(store->isReady());
    EXPECT_EQ(store->keyringProblem(), std::nullopt) << "nobody has needed it yet";
    EXPECT_EQ(sending(), lockedText);
    EXPECT_EQ(computer.failure(store->findGroup()), lockedText);
    EXPECT_EQ(computer.failure(store->createTopics()), lockedText);
    EXPECT_EQ(computer.failure(store->renameTopics()), lockedText);
    EXPECT_TRUE(computer.methods().empty());
    secrets.changed();
    EXPECT_EQ(store->keyringProblem(), lockedText);
    secrets.locked = false;
    EXPECT_EQ(sending(), sentText);
}

TEST_F(LateKeyring, GivesUpTheTokenWithAllTheRestOrNothing) {
    const Config before = store->config();
    for (const bool known : {true, false}) {
        secrets.locked = true;
        if (!known) computer.restart();
        EXPECT_EQ(computer.failure(store->forgetBotAndToken()), lockedText);
        secrets.available = false;
        EXPECT_EQ(computer.failure(store->forgetBotAndToken()), silentText);
        secrets.available = true;
        EXPECT_EQ(store->config(), before);
        EXPECT_TRUE(store->tokenSaved());
    }
    // A token that no keyring took is forgotten without one.
    secrets.available = false;
    await(store->connectBot(BotComputer::token));
    EXPECT_FALSE(store->tokenKept());
    EXPECT_EQ(computer.failure(store->forgetBotAndToken()), "");
    EXPECT_FALSE(store->tokenSaved());
    EXPECT_EQ(store->config(), Config{});
}

TEST_F(LateKeyring, LosesAForgottenTokenWhenItCan) {
    secrets.locked = true;
    store->forgetBot();
    secrets.changed();
    EXPECT_FALSE(store->tokenSaved());
    EXPECT_EQ(store->config(), Config{});
    EXPECT_EQ(computer.failure(store->findGroup()), "Connect your bot first.");
    secrets.locked = false;
    secrets.changed();
    EXPECT_TRUE(secrets.values.empty());
    await(store->connectBot(BotComputer::token));
    secrets.changed();
    EXPECT_FALSE(secrets.values.empty());
}

} // namespace quillon::test
