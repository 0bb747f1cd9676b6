#pragma once

#include "support/Await.h"
#include "support/Files.h"
#include "support/Unprivileged.h"

#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <sys/prctl.h>

#include <csignal>

namespace quillon::test {

/// A Wayland desktop without an X server: a compositor with one screen of 1280 by 800 pixels, and a
/// bar with room for icons. It runs as an ordinary user, for it refuses to run as root.
class Sway {
public:
    Sway() {
        const std::string folder = folder_.path().toStdString();
        write(folder + "/config", "xwayland disable\n"
                                  "output * resolution 1280x800\n"
                                  "default_border none\n"
                                  "bar {\n position top\n}\n");
        EXPECT_TRUE(::geteuid() != 0 || ::chown(folder.c_str(), nobody, nobody) == 0);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const auto& [name, value] : {std::pair{"XDG_RUNTIME_DIR", folder},
                                          {"SWAYSOCK", folder + "/control"},
                                          {"WLR_BACKENDS", "headless"},
                                          {"WLR_RENDERER", "pixman"},
                                          {"WLR_LIBINPUT_NO_DEVICES", "1"}})
            environment.insert(QLatin1String{name}, QString::fromStdString(value));
        process_.setProcessEnvironment(environment);
        process_.setStandardErrorFile(folder_.filePath(QStringLiteral("log")));
        process_.setChildProcessModifier([] {
            // A test program that crashes leaves no compositor behind.
            if (!becomeNobody() || ::prctl(PR_SET_PDEATHSIG, SIGKILL) != 0) ::_exit(1);
        });
        process_.start(QStringLiteral("sway"), {QStringLiteral("-c"), path("config")});
        EXPECT_TRUE(waitUntil([this] {
            return QFileInfo::exists(path(display)) && ask("-t get_version").contains("sway");
        })) << content(folder + "/log");
    }

    Sway(const Sway&) = delete;
    Sway& operator=(const Sway&) = delete;
    ~Sway() { stop(); }

    /// What $WAYLAND_DISPLAY would name it.
    [[nodiscard]] QString socket() const { return path(display); }

    /// Gives an order, or asks a question, of the compositor's own language.
    QByteArray ask(const std::string& question) const {
        QProcess asking;
        asking.start(QStringLiteral("swaymsg"),
                     QStringList{QStringLiteral("-s"), path("control")} +
                         QString::fromStdString(question).split(QLatin1Char{' '}));
        asking.waitForFinished();
        return asking.readAllStandardOutput();
    }

    /// What the screen shows.
    [[nodiscard]] QImage picture() const {
        QProcess grim;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("WAYLAND_DISPLAY"), socket());
        grim.setProcessEnvironment(environment);
        grim.start(QStringLiteral("grim"), {QStringLiteral("-")});
        grim.waitForFinished();
        return QImage::fromData(grim.readAllStandardOutput());
    }

    /// Has it hang.
    void hang() const { ::kill(static_cast<pid_t>(process_.processId()), SIGSTOP); }
    void stop() {
        process_.kill();
        process_.waitForFinished();
    }

private:
    static constexpr const char* display = "wayland-1"; // it has a folder of its own

    [[nodiscard]] QString path(const char* name) const {
        return folder_.filePath(QLatin1String{name});
    }

    QTemporaryDir folder_{QStringLiteral("/tmp/quillon-sway-XXXXXX")};
    QProcess process_;
};

} // namespace quillon::test
