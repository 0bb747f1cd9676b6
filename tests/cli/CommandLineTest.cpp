#include "cli/CommandLine.h"
#include "cli/SendCommand.h"
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
    EXPECT_EQ(understood({"--json", "status"}), "status(--json)");
    EXPECT_EQ(understood({"launch-at-login", "off"}), "launch-at-login(off)");
    EXPECT_EQ(understood({"history", "12"}), "history(12)");
    EXPECT_EQ(understood({"status", "launch-at-login"}), "launch-at-login(status)");
    EXPECT_EQ(understood({"doctor", "--names", "--json"}), "doctor(--names--json)");
    const std::vector<std::vector<std::string>> misunderstood{{},
                                                              {""},
                                                              {"--json"},
                                                              {"send", "--json"},
                                                              {"status", "send"},
                                                              {"status", "1"},
                                                              {"history", "0"},
                                                              {"history", "1x"},
                                                              {"history", "-1"},
                                                              {"connect", "1:token"},
                                                              {"launch-at-login"},
                                                              {"launch-at-login", "on", "off"},
                                                              {"launch-at-login", "--yes"},
                                                              {"send", "--complete"},
                                                              {"doctor", "--json", "--json"},
                                                              {"doctor", "--json", "--yes"},
                                                              {"uninstall"}};
    for (const auto& arguments : misunderstood)
        EXPECT_EQ(understood(arguments), "") << testing::PrintToString(arguments);
}

TEST(CommandLine, TellsWhatToSend) {
    using Words = std::vector<std::string>;
    const std::pair<Words, SendRequest> cases[]{
        {{}, {}},
        {{"a", "--", "--topic", "./-"}, {.files = {"a", "--topic", "./-"}}},
        {{"a", "--topic", "videos", "b"}, {.files = {"a", "b"}, .topic = TopicKind::videos}},
        {{"--topic=notes", "-"}, {.input = true, .topic = TopicKind::notes}},
        {{"--name", "-"}, {.input = true, .name = "-"}},
        {{"--name=a=b", "-"}, {.input = true, .name = "a=b"}},
    };
    for (const auto& [words, request] : cases)
        EXPECT_EQ(parseSend(words), request) << testing::PrintToString(words);
    for (const Words& words :
         {Words{"--name"}, {"--topic", "x"}, {"--topic"}, {"-x"}, {""}, {"-", "a"}})
        EXPECT_EQ(parseSend(words), std::nullopt) << testing::PrintToString(words);
    EXPECT_EQ(understood({"/a b", "-x"}), "send(--/a b-x)") << "as desktops open files";
}

TEST(Terminal, IsNotDrivenByWhatIsPrinted) {
    EXPECT_EQ(Terminal::harmless("a\x1b[2Jb\r\n\x7F\u009B\tc\xFF ü"),
              "a\uFFFD[2Jb\uFFFD\uFFFD\uFFFD\uFFFD\tc\xFF ü");
}
