#include "ui/setup/SetupView.h"

#include "support/ConnectedComputer.h"
#include "support/Controls.h"
#include "support/Faults.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/Spinner.h"
#include "ui/theme/Motion.h"

#include <QLineEdit>

namespace quillon::test {

namespace {

using sandbox::FaultKind;

/// The guide in a window, over a store that the test leads through the setup.
template <typename Computer>
struct Guide : testing::Test {
    Guide() { setAnimationsEnabled(false); }
    ~Guide() override { setAnimationsEnabled(std::nullopt); }

    QLineEdit& field() { return controls.get<QLineEdit>("Bot token"); }
    void type(const QString& token) {
        field().clear();
        QTest::keyClicks(&field(), token);
    }
    /// Changes the settings and lets the guide follow.
    void change(const std::function<void(Config&)>& how) {
        computer.store->changeConfig(how);
        QCoreApplication::processEvents();
    }
    [[nodiscard]] bool shows(const char* text) const { return controls.shows(text); }
    [[nodiscard]] bool working() const {
        const auto spinners = view.findChildren<Spinner*>();
        return std::ranges::any_of(spinners, &QWidget::isVisible);
    }
    bool waitUntilShown(const char* text) {
        return waitUntil([&] { return shows(text); });
    }

    Computer computer;
    SetupView view{*computer.store};
    Controls controls{view};
};

using NewUser = Guide<BotComputer>;
using KnownUser = Guide<ConnectedComputer>;

} // namespace

TEST(StepTest, FollowsFromWhatTheStoreKnows) {
    // A group that is known without a token, as after a lost keyring, still begins at the token.
    const std::vector<std::pair<SetupProgress, int>> table{
        {{false, false, false}, 1}, {{false, true, true}, 1}, {{true, false, false}, 3},
        {{true, true, false}, 4},   {{true, true, true}, 5},
    };
    for (const auto& [progress, position] : table)
        EXPECT_EQ(step(progress), position);
}

TEST_F(NewUser, SeesTheFirstTwoStepsAndTheOthersDimmed) {
    EXPECT_TRUE(shows("Open BotFather"));
    EXPECT_TRUE(shows("In Telegram, open @BotFather, send /newbot and follow the steps. It gives "
                      "you a token. The bot is yours alone."));
    for (const char* hidden : {"Find my group", "Use another bot", "Done", "Made with @BotFather",
                               "4 topics ready", "You're all set."})
        EXPECT_FALSE(shows(hidden)) << hidden;
    for (const char* badge : {"1", "2"})
        EXPECT_NEAR(controls.opacity(badge), 1, 0.001) << badge;
    for (const char* badge : {"3", "4"})
        EXPECT_NEAR(controls.opacity(badge), 0.45, 0.001) << badge;

    controls.click("Step 3: Make your group");
    EXPECT_FALSE(controls.enabled("Find my group"));
    controls.click("Step 3: Make your group");
    EXPECT_FALSE(shows("Find my group"));
}

TEST_F(NewUser, KeepsATokenThatFailedAndEmptiesTheFieldAfterOneThatWorked) {
    // Else the answer may be there before the key press is over.
    computer.sandbox.failNext(fault(FaultKind::delay, 300ms));
    EXPECT_EQ(field().echoMode(), QLineEdit::Password);
    EXPECT_FALSE(controls.enabled("Connect")) << "the field is empty";
    type(QStringLiteral("7000000001:wrong"));
    EXPECT_TRUE(controls.enabled("Connect"));
    QTest::keyClick(&field(), Qt::Key_Return);
    EXPECT_TRUE(working());
    EXPECT_FALSE(controls.enabled("Connect"));
    QTest::keyClicks(&field(), QStringLiteral("er"));
    EXPECT_FALSE(controls.enabled("Connect")) << "one at a time";
    QTest::keyClick(&field(), Qt::Key_Return);
    ASSERT_TRUE(waitUntilShown("Telegram didn't accept that bot token."));
    EXPECT_FALSE(working());
    EXPECT_THAT(computer.methods(), ElementsAre("getMe"));
    EXPECT_EQ(field().text(), QStringLiteral("7000000001:wronger"));

    QLineEdit& typed = field();
    type(QString::fromLatin1(BotComputer::token));
    typed.setFocus();
    controls.click("Connect");
    EXPECT_FALSE(shows("Telegram didn't accept that bot token."));
    ASSERT_TRUE(waitUntilShown("Connected to @quillon_demo_bot"));
    EXPECT_TRUE(shows("Made with @BotFather"));
    EXPECT_TRUE(typed.text().isEmpty());
    EXPECT_FALSE(shows("Open BotFather"));
    ASSERT_TRUE(waitUntil([&] { return !working(); }));
    EXPECT_TRUE(controls.enabled("Find my group"));
    EXPECT_EQ(view.focusWidget(), &controls.get("Find my group"));
    controls.click("Step 4: Create the topics");
    EXPECT_FALSE(controls.enabled("Create the topics")) << "there is no group";
}

TEST_F(NewUser, MayCloseTheWindowWhileAnActionRuns) {
    auto closing = std::make_unique<SetupView>(*computer.store);
    const Controls inside{*closing};
    computer.sandbox.failNext(fault(FaultKind::delay));
    QTest::keyClicks(&inside.get<QLineEdit>("Bot token"), QString::fromLatin1(BotComputer::token));
    inside.click("Connect");
    closing.reset();
    EXPECT_TRUE(waitUntil([&] { return computer.store->tokenSaved(); }));
}

TEST_F(NewUser, ReadsInBoldWhatToLookFor) {
    std::vector<std::string> bold;
    for (const IconLabel* label : view.findChildren<IconLabel*>()) {
        for (const StyledText::Run& run : label->text().runs()) {
            if (run.bold) bold.push_back(run.text.toStdString());
        }
    }
    EXPECT_THAT(bold,
                UnorderedElementsAre("@BotFather", "/newbot", "New Group", "group name", "pencil",
                                     "Topics", "hold", "Promote to admin", "Manage Topics"));
}

TEST_F(KnownUser, IsAskedForTheTopicThatIsMissing) {
    change([](Config& config) {
        config.topics[2].threadId.reset();
        config.chatTitle = "100% ours";
    });
    EXPECT_TRUE(shows("Found 100% ours"));
    EXPECT_FALSE(shows("You're all set."));
    EXPECT_FALSE(shows("4 topics ready"));
    controls.click<ContentButton>("Step 3: Make your group");
    EXPECT_TRUE(controls.enabled("Find again"));

    computer.sandbox.failNext(flood(1)); // Telegram makes it wait on the test's clock
    computer.sandbox.failNext(refusal("getUpdates", 400, "Bad Request: **no** rights"));
    controls.click("Find again");
    for (const char* button : {"Find again", "Create the topics"})
        EXPECT_FALSE(controls.enabled(button)) << button;
    ASSERT_TRUE(waitUntil([&] {
        computer.clock.advance(1s);
        return !working();
    }));
    EXPECT_TRUE(shows("Bad Request: **no** rights")) << "stars and all";
    controls.click<TextButton>("Create the topics");
    EXPECT_TRUE(waitUntilShown("You're all set."));
}

TEST_F(KnownUser, HasOtherNamesWhereNothingIsKnown) {
    change([](Config& config) {
        config.botName.reset();
        config.chatTitle.reset();
        config.topics.pop_back();
    });
    EXPECT_TRUE(shows("Connected to @your bot"));
    EXPECT_TRUE(shows("Found your group"));
    EXPECT_TRUE(shows("3 topics ready"));
}

TEST_F(KnownUser, GoesBackToTheStartWithAnotherBot) {
    controls.click("Step 2: Paste the token");
    EXPECT_TRUE(shows("The token is kept in your Mac's Keychain."));
    controls.click("Use another bot");
    EXPECT_FALSE(computer.store->tokenSaved());
    EXPECT_TRUE(computer.secrets.values.empty());
    EXPECT_TRUE(shows("Bot token"));
    EXPECT_FALSE(shows("You're all set."));
    EXPECT_NEAR(controls.opacity("Step 3: Make your group"), 0.45, 0.001);
}

TEST_F(KnownUser, ComesToTheSameAnimated) {
    setAnimationsEnabled(true);
    change([](Config& config) { config.topics[0].threadId.reset(); });
    EXPECT_TRUE(view.moving());
    ASSERT_TRUE(waitUntil([&] { return !view.moving(); }));
    EXPECT_EQ(view.growthAhead(), 0);
    EXPECT_FALSE(shows("You're all set."));
}

} // namespace quillon::test
