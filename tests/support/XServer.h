#pragma once

#include <QByteArray>
#include <QProcess>

#include <gtest/gtest.h>

#include <sys/prctl.h>

#include <csignal>

namespace quillon::test {

/// An X server without a screen, on a free display, for as long as the object lives.
class XServer {
public:
    XServer() {
        // A test program that crashes leaves no server behind.
        process_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
        process_.setStandardErrorFile(QProcess::nullDevice());
        process_.start(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1"),
                                                QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                                                QStringLiteral("-noreset")});
        while (!process_.canReadLine() && process_.waitForReadyRead(20'000)) {
        }
        display_ = ":" + process_.readLine().trimmed();
        EXPECT_GT(display_.size(), 1) << "Xvfb did not start";
    }

    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;
    ~XServer() { stop(); }

    /// What $DISPLAY would name it.
    [[nodiscard]] const char* display() const { return display_.constData(); }

    void stop() {
        process_.kill();
        process_.waitForFinished();
    }

private:
    QProcess process_;
    QByteArray display_;
};

} // namespace quillon::test
