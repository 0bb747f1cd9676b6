// What becomes of the program while its keyring is late, away, or locked.
#include "support/ConnectedComputer.h"

#include <gmock/gmock.h>

namespace quillon::test {

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using State = Store::KeyringState;

constexpr const char* lockedText = "Your keyring is locked. Unlock it and try again.";
constexpr const char* silentText = "Your keyring doesn't answer. Start or unlock it and try again.";

struct LateKeyring : testing::Test {
    /// What the banner says to a send.
    std::vector<std::string> sending() {
        computer.clear();
        computer.send({{"UTF8_STRING", "a"}});
        std::vector<std::string> banners;
        for (const BannerMessage& message : computer.banner.shown)
            banners.push_back(message.text);
        return banners;
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
    int announced = 0;
    QObject::connect(store.get(), &Store::objectWillChange, [&] { ++announced; });
    secrets.answer();
    EXPECT_TRUE(waitUntil([this] { return store->isReady(); }));
    EXPECT_EQ(store->keyringProblem(), std::nullopt);
    EXPECT_GT(announced, 0) << "views follow";

    secrets.late = true;
    secrets.values.clear();
    computer.restart();
    computer.storeEvents.reset();
    store.reset();
    secrets.answer();
    QCoreApplication::processEvents(); // nobody takes the answer
}

TEST_F(LateKeyring, IsAskedAgainAtEachSendAndWhenItComesUp) {
    secrets.available = false;
    computer.restart();
    EXPECT_EQ(store->keyring(), State::silent);
    EXPECT_THAT(sending(), ElementsAre(silentText));
    secrets.available = true;
    EXPECT_THAT(sending(), ElementsAre("Sent to 📝 Notes & text"));
    EXPECT_TRUE(store->isReady());
    secrets.available = false;
    EXPECT_THAT(sending(), SizeIs(1)) << "the token is known by now";
    EXPECT_THAT(computer.methods(), ElementsAre("sendMessage"));

    computer.restart();
    EXPECT_FALSE(store->isReady());
    secrets.available = true;
    secrets.changed();
    EXPECT_TRUE(store->isReady());

    secrets.values.clear();
    computer.restart();
    EXPECT_FALSE(store->mayBeReady()) << "it says that there is no token";
    EXPECT_THAT(sending(), ElementsAre("Finish setting up Quillon first"));
}

TEST_F(LateKeyring, IsNamedWhileItIsLocked) {
    secrets.locked = true;
    computer.restart();
    EXPECT_TRUE(store->isReady());
    EXPECT_EQ(store->keyringProblem(), std::nullopt) << "nobody has needed it yet";
    EXPECT_THAT(sending(), ElementsAre(lockedText));
    EXPECT_EQ(computer.failure(store->findGroup()), lockedText);
    EXPECT_EQ(computer.failure(store->createTopics()), lockedText);
    EXPECT_EQ(computer.failure(store->renameTopics()), lockedText);
    EXPECT_THAT(computer.methods(), IsEmpty());
    secrets.changed();
    EXPECT_EQ(store->keyringProblem(), lockedText);
    secrets.locked = false;
    secrets.changed();
    EXPECT_EQ(store->keyringProblem(), std::nullopt);
    EXPECT_THAT(sending(), ElementsAre("Sent to 📝 Notes & text"));
}

TEST_F(LateKeyring, GivesUpTheTokenWithAllTheRestOrNothing) {
    const Config before = store->config();
    for (const bool known : {true, false}) {
        secrets.locked = true;
        if (!known) computer.restart();
        EXPECT_EQ(computer.failure(store->forgetBot()), lockedText);
        secrets.available = false;
        EXPECT_EQ(computer.failure(store->forgetBot()), silentText);
        secrets.available = true;
        EXPECT_EQ(store->config(), before);
        EXPECT_TRUE(store->tokenSaved());
    }
    // A token that no keyring took is forgotten without one.
    secrets.available = false;
    await(store->connectBot(BotComputer::token));
    EXPECT_FALSE(store->tokenKept());
    EXPECT_EQ(computer.failure(store->forgetBot()), "");
    EXPECT_FALSE(store->tokenSaved());
    EXPECT_EQ(store->config(), Config{});
}

TEST_F(LateKeyring, IsSaidToBeWaitedForAfterFiveSeconds) {
    int said = 0;
    QObject::connect(store.get(), &Store::keyringSlow, [&] { ++said; });
    const auto expectSaid = [&](auto action) {
        said = 0;
        secrets.late = true;
        auto running = action();
        ASSERT_TRUE(waitUntil([&] { return computer.clock.pending() == 1; }));
        computer.clock.advance(4999ms);
        EXPECT_EQ(said, 0);
        computer.clock.advance(1ms);
        EXPECT_EQ(said, 1);
        secrets.answer();
        await(std::move(running));
    };
    expectSaid([&] { return store->connectBot(BotComputer::token); });
    EXPECT_TRUE(store->tokenKept());
    expectSaid([&] { return store->forgetBot(); });
    EXPECT_EQ(computer.clock.pending(), 0);
}

} // namespace quillon::test
