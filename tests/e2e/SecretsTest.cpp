// Where the bot token may not be.
#include "EndToEnd.h"

namespace quillon::test {

namespace {

/// The regular files below the folder that hold the text.
std::vector<std::string> holders(const std::filesystem::path& folder, const std::string& text) {
    std::vector<std::string> found;
    for (const auto& entry : std::filesystem::recursive_directory_iterator{folder}) {
        if (!entry.is_symlink() && entry.is_regular_file() &&
            content(entry.path()).find(text) != std::string::npos)
            found.push_back(entry.path());
    }
    return found;
}

using Secrets = EndToEnd;

} // namespace

TEST_F(Secrets, AreShownToNobody) {
    const std::string secret = "secret-part-that-nobody-may-see-0001";
    phone.addBot("4242:" + secret, "other_bot");
    phone.addBotToGroup(group);
    phone.userSays(group, "hi");
    std::vector<Finished> runs{quillon.run({"connect"}, "4242:" + secret)};
    ASSERT_EQ(runs[0].code, 0) << runs[0].err;
    for (const char* command : {"find-group", "create-topics", "status", "rename-topics"})
        runs.push_back(quillon.run({command}));
    // What its processes show of themselves while they talk to Telegram.
    clipboard.copyText("a");
    phone.failNext(fault(sandbox::FaultKind::hang));
    const auto sending = quillon.start({"send"});
    ASSERT_TRUE(waitUntil([this] {
        return phone.requests().back().method == "sendMessage" &&
               !phone.requests().back().fault.empty();
    }));
    const std::vector<int> ids = quillon.processes();
    EXPECT_THAT(ids, SizeIs(2));
    for (const int id : ids) {
        const std::string folder = "/proc/" + std::to_string(id) + "/";
        for (const char* name : {"cmdline", "environ", "comm"}) {
            EXPECT_THAT(content(folder + name), AllOf(Not(IsEmpty()), Not(HasSubstr(secret))))
                << name;
        }
    }
    phone.stop();
    runs.push_back(Program::finish(*sending));
    EXPECT_EQ(runs.back().code, 1);
    for (const char* command : {"history", "send", "find-group"})
        runs.push_back(quillon.run({command}));
    for (const Finished& run : runs)
        EXPECT_THAT(run.out + run.err, Not(HasSubstr(secret)));
    const std::string home = qgetenv("HOME").toStdString();
    EXPECT_FALSE(std::filesystem::is_empty(home + "/.local/share/keyrings")) << "it is on the disk";
    EXPECT_THAT(holders(home, secret), IsEmpty());
}

} // namespace quillon::test
