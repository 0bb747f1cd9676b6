#include "cli/CommandLine.h"
#include "cli/Reports.h"
#include "cli/Terminal.h"

#include <gmock/gmock.h>

using namespace quillon;

namespace {

/// "status(--json)", and "" for what was not understood.
std::string understood(const std::vector<std::string>& words) {
    const auto invocation = parseCommandLine(words);
    if (!invocation) return {};
    std::string text = std::string{invocation->command->name} + "(";
    for (const std::string& argument : invocation->arguments)
        text += argument;
    return text + ")";
}

} // namespace

TEST(CommandLine, UnderstandsOneCommandAndItsOption) {
    EXPECT_EQ(understood({"send"}), "send()");
    EXPECT_EQ(understood({"settings"}), "settings()");
    EXPECT_EQ(understood({"--json", "status"}), "status(--json)");
    EXPECT_EQ(understood({"history", "--json"}), "history(--json)");
    EXPECT_EQ(understood({"launch-at-login", "off"}), "launch-at-login(off)");
    EXPECT_EQ(understood({"launch-at-login", "status"}), "launch-at-login(status)");
    EXPECT_EQ(understood({"status", "launch-at-login"}), "launch-at-login(status)");
    EXPECT_EQ(understood({"check-for-updates"}), "check-for-updates()");
    const std::vector<std::vector<std::string>> misunderstood{{},
                                                              {""},
                                                              {"--json"},
                                                              {"send", "--json"},
                                                              {"send", "status"},
                                                              {"send", "send"},
                                                              {"Send"},
                                                              {"connect", "1:token"},
                                                              {"launch-at-login"},
                                                              {"launch-at-login", "on", "off"},
                                                              {"launch-at-login", "--yes"},
                                                              {"send", "--complete"},
                                                              {"uninstall"}};
    for (const auto& arguments : misunderstood) {
        EXPECT_EQ(understood(arguments), "") << testing::PrintToString(arguments);
    }
}

TEST(CommandLine, KnowsWhatOnlyReads) {
    const auto reads = [](const std::vector<std::string>& words) {
        return parseCommandLine(words)->onlyReads();
    };
    EXPECT_TRUE(reads({"status"}));
    EXPECT_TRUE(reads({"history", "--json"}));
    EXPECT_TRUE(reads({"launch-at-login", "status"}));
    EXPECT_FALSE(reads({"launch-at-login", "on"}));
    EXPECT_FALSE(reads({"send"}));
}

TEST(CommandLine, OffersWhatMayFollow) {
    const std::string commands = completions({});
    EXPECT_THAT(commands, testing::StartsWith("send\tsend what is on the clipboard\npanel\t"));
    EXPECT_THAT(commands, testing::Not(testing::HasSubstr("--complete")));
    EXPECT_EQ(completions({"launch-at-login"}), "on\topen it\noff\tdo not\nstatus\ttell which\n");
    EXPECT_EQ(completions({"status", "--json"}), "");
    EXPECT_EQ(completions({"sned"}), "");
}

/// Whoever adds a row must say what it does.
TEST(CommandLine, HasSomethingToDoForEachCommand) {
    for (const Command& command : allCommands()) {
        const bool works =
            command.where == Where::dataHolder || command.where == Where::hereAfterQuit;
        EXPECT_EQ(command.action != nullptr, works) << command.name;
        EXPECT_EQ(command.text != nullptr, command.where == Where::here) << command.name;
    }
}

TEST(Terminal, IsNotDrivenByWhatIsPrinted) {
    EXPECT_EQ(Terminal::harmless("a\x1b[2Jb\r\n\x7F\u009B\tc\xFF ü"),
              "a\uFFFD[2Jb\uFFFD\uFFFD\uFFFD\uFFFD\tc\xFF ü");
}

TEST(Reports, TellTheMomentInUtc) {
    const Sent sent{.id =
                        QUuid::fromString(QStringLiteral("{a1b2c3d4-0000-4000-8000-00000000000f}")),
                    .symbol = "doc",
                    .title = "t",
                    .topic = "p",
                    .date = Date{std::chrono::duration<double>{1'700'000'000.5}},
                    .error = std::nullopt};
    EXPECT_EQ(historyJson({sent}), R"([{"id":"A1B2C3D4-0000-4000-8000-00000000000F",)"
                                   R"("date":"2023-11-14T22:13:20.500Z","topic":"p","title":"t"}])"
                                   "\n");
}
