#include "ui/CommandService.h"

#include "cli/SpokenBanner.h"
#include "support/TestComputer.h"

#include <gmock/gmock.h>

namespace quillon::test {

TEST(CommandService, GrantsWhatWasWishedForBeforeItWasReady) {
    const TestComputer computer;
    SpokenBanner banner{nullptr};
    std::vector<std::string> granted;
    const DesktopActions actions{.showSettings = [&] { granted.emplace_back("settings"); },
                                 .showPanel = [&] { granted.emplace_back("panel"); },
                                 .send = [&] { granted.emplace_back("send"); }};
    CommandService service{[] {}};
    // As a bus does that has started the program for just this.
    service.wishByName(QStringLiteral("send"), {});
    service.wish(&DesktopActions::showSettings, {});
    EXPECT_THAT(granted, testing::IsEmpty());
    Platform platform = computer.platform;
    service.serve({platform, *computer.analytics, *computer.store, banner, nullptr}, actions);
    EXPECT_THAT(granted, testing::ElementsAre("send", "settings"));
    service.wishByName(QStringLiteral("settings"), {});
    EXPECT_THAT(granted, testing::ElementsAre("send", "settings", "settings"));
}

} // namespace quillon::test
