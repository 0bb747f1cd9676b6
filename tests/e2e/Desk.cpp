#include "Desk.h"

#include "Program.h"
#include "support/Await.h"
#include "support/Files.h"

#include <QRegularExpression>

namespace quillon::test {

namespace {

constexpr const char* panelSettings = "panel_items = S\n"
                                      "panel_size = 100% 32\n"
                                      "panel_position = bottom center horizontal\n"
                                      "systray_icon_size = 22\n";

const QString pointerTool = QStringLiteral("xdotool");

QString answer(const QString& tool, const char* question) {
    QProcess asking;
    asking.start(tool, words(question));
    asking.waitForFinished();
    return QString::fromUtf8(asking.readAllStandardOutput());
}

/// What the X server tells of the panel's window and those in it.
QString panelWindows() {
    return answer(QStringLiteral("xwininfo"), "-name tint2 -tree");
}

bool focusOther() {
    // Fails for as long as the window is not on the screen, or the window manager gives the focus
    // to another that has just come.
    return QProcess::execute(pointerTool, words("search --onlyvisible --name probe windowfocus")) ==
               0 &&
           answer(pointerTool, "getwindowfocus getwindowname").trimmed() == u"probe";
}

} // namespace

Desk::Desk() {
    for (QProcess* process : {&panel_, &other_})
        process->setStandardErrorFile(QProcess::nullDevice());
    panel_.setStandardOutputFile(QProcess::nullDevice());
    bringPanel();
    other_.start(QStringLiteral("xev"), words("-event keyboard -name probe"));
    EXPECT_TRUE(waitUntil(focusOther));
}

Desk::~Desk() {
    for (QProcess* process : {&panel_, &other_}) {
        process->kill();
        process->waitForFinished();
    }
}

void Desk::bringPanel() {
    const QString settings = files_.filePath(QStringLiteral("panel"));
    write(settings.toStdString(), panelSettings);
    panel_.start(QStringLiteral("tint2"), {QStringLiteral("-c"), settings});
    EXPECT_TRUE(waitUntil([] { return panelWindows().contains(QStringLiteral("tint2")); }));
}

void Desk::takePanelAway() {
    panel_.kill();
    EXPECT_TRUE(panel_.waitForFinished());
}

QRect Desk::icon() {
    static const QRegularExpression line{
        QStringLiteral(R"re("quillon" "Quillon"\)\s+(\d+)x(\d+)\S+\s+\+(\d+)\+(\d+))re")};
    const QRegularExpressionMatch match = line.match(panelWindows());
    if (!match.hasMatch()) return {};
    const auto number = [&](int group) { return match.captured(group).toInt(); };
    return {number(3), number(4), number(1), number(2)};
}

void Desk::point(QPoint there) {
    const std::string place = std::to_string(there.x()) + " " + std::to_string(there.y());
    EXPECT_EQ(QProcess::execute(pointerTool, words("mousemove " + place)), 0);
}

void Desk::click(QPoint there) {
    point(there);
    EXPECT_EQ(QProcess::execute(pointerTool, words("click 1")), 0);
}

void Desk::press(const std::string& keys) {
    EXPECT_EQ(QProcess::execute(pointerTool, words("key " + keys)), 0);
}

void Desk::type(const std::string& text) {
    QProcess typing;
    typing.start(pointerTool, words("type --file -"));
    typing.write(text.data(), static_cast<qint64>(text.size()));
    typing.closeWriteChannel();
    EXPECT_TRUE(typing.waitForFinished());
}

void Desk::goToOtherWindow() {
    EXPECT_TRUE(waitUntil(focusOther));
}

} // namespace quillon::test
