#include "cli/CommandLine.h"
#include "cli/Reports.h"
#include "cli/Terminal.h"

#include <gtest/gtest.h>

using namespace quillon;

TEST(CommandLine, UnderstandsOneCommandAndItsOption) {
    EXPECT_EQ(parseCommandLine({"send"}), (Invocation{Command::send, ""}));
    EXPECT_EQ(parseCommandLine({"settings"}), (Invocation{Command::settings, ""}));
    EXPECT_EQ(parseCommandLine({"--json", "status"}), (Invocation{Command::status, "--json"}));
    EXPECT_EQ(parseCommandLine({"history", "--json"}), (Invocation{Command::history, "--json"}));
    EXPECT_EQ(parseCommandLine({"launch-at-login", "off"}),
              (Invocation{Command::launchAtLogin, "off"}));
    EXPECT_EQ(parseCommandLine({"launch-at-login", "status"}),
              (Invocation{Command::launchAtLogin, "status"}));
    EXPECT_EQ(parseCommandLine({"check-for-updates"}), (Invocation{Command::checkForUpdates, ""}));
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
                                                              {"uninstall"}};
    for (const auto& arguments : misunderstood) {
        EXPECT_EQ(parseCommandLine(arguments), std::nullopt) << testing::PrintToString(arguments);
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
