#include "ui/updates/UpdateWindows.h"

#include "support/Await.h"
#include "support/Controls.h"
#include "support/RawServer.h"
#include "ui/updates/ReleaseNotes.h"

#include <QTextBrowser>

namespace quillon::test {

namespace {

void press(const char* caption) {
    Controls{*shownWindow()}.click(caption);
}

void closeWindow() {
    shownWindow()->close();
}

void type(Qt::Key key) {
    QTest::keyClick(shownWindow(), key);
}

std::vector<std::string> seen() {
    return Controls{*shownWindow()}.seen();
}

} // namespace

TEST(UpdateWindows, GivesTheAnswerOfEachWayOutOfAWindow) {
    using Way = std::function<void()>;
    UpdateWindows windows;
    const std::pair<Way, UpdateChoice> offers[] = {
        {[] { press("Install"); }, UpdateChoice::install},
        {[] { press("Later"); }, UpdateChoice::later},
        {[] { type(Qt::Key_Escape); }, UpdateChoice::later},
        {[&] { windows.dismiss(); }, UpdateChoice::later},
        {[] { press("Skip this version"); }, UpdateChoice::skip},
    };
    for (const auto& [leave, choice] : offers) {
        const auto answer = windows.showUpdate({"1.0", "1.1", "notes"});
        EXPECT_FALSE(answer.isFinished());
        leave();
        EXPECT_EQ(await(answer), choice);
        EXPECT_EQ(shownWindow(), nullptr);
    }
    const std::pair<Way, InstallTime> ready[] = {
        {[] { press("Install and Relaunch"); }, InstallTime::nowAndRelaunch},
        {[] { press("Install on Quit"); }, InstallTime::onQuit},
        {[] { type(Qt::Key_Escape); }, InstallTime::onQuit},
    };
    for (const auto& [leave, time] : ready) {
        const auto answer = windows.showReady("1.1");
        leave();
        EXPECT_EQ(await(answer), time);
    }
    const std::pair<Way, bool> permissions[] = {{[] { press("Check Automatically"); }, true},
                                                {closeWindow, false}};
    for (const auto& [leave, granted] : permissions) {
        const auto answer = windows.askPermission();
        type(Qt::Key_Return); // meant for another program
        EXPECT_FALSE(answer.isFinished());
        EXPECT_TRUE(shownWindow()->testAttribute(Qt::WA_ShowWithoutActivating));
        leave();
        EXPECT_EQ(await(answer), granted);
    }
}

TEST(UpdateWindows, AnswersForAUserWhoEndsTheProgram) {
    auto windows = std::make_unique<UpdateWindows>();
    const auto permission = windows->askPermission();
    const auto choice = windows->showUpdate({"1.0", "1.1", ""});
    windows.reset();
    EXPECT_FALSE(await(permission));
    EXPECT_EQ(await(choice), UpdateChoice::later);
}

TEST(UpdateWindows, FollowsADownloadThatOnlyItsUserCancels) {
    UpdateWindows windows;
    const std::stop_source cancel;
    windows.showPreparing("1.1", cancel);
    type(Qt::Key_Return); // meant for the window before
    // More bytes than an int counts.
    windows.showProgress({UpdateProgress::Stage::downloading, 3'000'000'000, 6'000'000'000});
    EXPECT_THAT(seen(), Contains(HasSubstr("3,000.0 of 6,000.0 MB")));
    windows.showProgress({UpdateProgress::Stage::unpacking, 0, 0});
    const auto ready = windows.showReady("1.1");
    EXPECT_FALSE(cancel.stop_requested());
    windows.showProgress({UpdateProgress::Stage::downloading, 1, 2}); // too late
    EXPECT_THAT(seen(), Contains(HasSubstr("Quillon 1.1 is ready to install")));
    windows.showPreparing("1.1", cancel);
    closeWindow();
    EXPECT_TRUE(cancel.stop_requested());
}

TEST(UpdateWindows, LoadsNothingThatNotesName) {
    RawServer server{[](RawServer::Connection& connection) { connection.awaitEnd(); }};
    UpdateWindows windows;
    const auto answer = windows.showUpdate(
        {"1.0", "<b>1.1</b>" + std::string(10'000, 'x'),
         "<p>New</p><img src='" + server.url("/a.png") + "'><link rel='stylesheet' href='" +
             server.url("/a.css") + "'><p style='background-image:url(" + server.url("/b.png") +
             ")'>Styled</p>"});
    EXPECT_LE(shownWindow()->width(), 800);
    EXPECT_THAT(seen(), Contains(HasSubstr("<b>1.1</b>"))); // a version is no markup
    const auto* view = shownWindow()->findChild<QTextBrowser*>();
    ASSERT_NE(view, nullptr);
    EXPECT_TRUE(view->isReadOnly());
    EXPECT_EQ(view->toPlainText(), QLatin1String{"New\nStyled"});
    shownWindow()->grab();
    EXPECT_EQ(server.connections(), 0);
}

TEST(ReleaseNotes, KeepTheStructureOfATextAndNothingElse) {
    const std::pair<std::string, std::string> cases[] = {
        {"<h2 style='color:red'>New</h2>", "<h2>New</h2>"},
        {"<UL><LI>a<LI>b</UL>", "<ul><li>a<li>b</ul>"},
        {"a<script>if (1<2) f()</script><p>b</p>", "a<p>b</p>"},
        {"<p>a<!-- <b> --></p>", "<p>a</p>"},
        {"<p>a<img src=x onerror='>'>b</p>", "<p>ab</p>"},
        {R"(<p>a</p><a href="https://example.com/a?b" style="x">c</a>)",
         R"(<p>a</p><a href="https://example.com/a?b">c</a>)"},
        {"<p>a</p><a href='file:///etc/passwd'>c</a>", "<p>a</p><a>c</a>"},
        {"<p>a</p><a href='javascript:x'>c</a>", "<p>a</p><a>c</a>"},
        {"<p>a</p><ul", "<p>a</p>"},
        {"<img src=file:///x width=99999 <b>c</b>>", "&lt;img src=file:///x width=99999 <b>c</b>>"},
        {"<p>a</p><script>endless", "<p>a</p>"},
    };
    for (const auto& [notes, html] : cases)
        EXPECT_EQ(releaseNotesHtml(notes).toStdString(), html) << notes;
    EXPECT_THAT(releaseNotesHtml("1 < 2 & so\non").toStdString(), HasSubstr("1 &lt; 2 &amp; so"));
    std::string deep = "<p>a</p>";
    for (int i = 0; i < 1'000; ++i)
        deep += "<ul><li>";
    EXPECT_LT(releaseNotesHtml(deep).count(QLatin1String{"<ul>"}), 20);
}

} // namespace quillon::test
