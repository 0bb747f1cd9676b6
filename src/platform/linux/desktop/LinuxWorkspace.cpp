#include "platform/linux/desktop/LinuxWorkspace.h"

#include "platform/linux/desktop/ActivationToken.h"
#include "platform/linux/desktop/DesktopEntries.h"
#include "platform/linux/desktop/LinuxBundle.h"
#include "platform/linux/desktop/Relaunch.h"
#include "platform/linux/desktop/RunningPrograms.h"
#include "platform/linux/files/Trash.h"
#include "platform/linux/shortcut/GnomeBinding.h"
#include "platform/linux/x11/X11Activation.h"
#include "platform/linux/x11/X11Screen.h"

#include <QCoreApplication>
#include <QCursor>
#include <QGuiApplication>
#include <QTimer>
#include <QWindow>
#include <QtConcurrentRun>

#include <cstdlib>
#include <iostream>
#include <utility>

namespace quillon {

namespace {

/// Excludes the banner, menus, tool tips and the icon in the desktop's panel.
bool takesFocus(const QWindow& window) {
    constexpr Qt::WindowFlags unmanaged =
        Qt::WindowDoesNotAcceptFocus | Qt::BypassWindowManagerHint;
    const bool passing = window.type() == Qt::Popup || window.type() == Qt::ToolTip;
    return !passing && !(window.flags() & unmanaged);
}

} // namespace

LinuxWorkspace::LinuxWorkspace(Folders folders) : folders_{std::move(folders)} {}

std::vector<std::filesystem::path>
LinuxWorkspace::runningApplications(std::string_view identifier) const {
    std::vector<std::filesystem::path> applications;
    for (const auto& program : runningPrograms()) {
        const auto folder = applicationFolder(program);
        if (folder && bundleAt(*folder).identifier() == identifier) applications.push_back(*folder);
    }
    return applications;
}

QFuture<bool> LinuxWorkspace::trash(std::filesystem::path path) {
    return QtConcurrent::run([path, data = folders_.data] { return moveToTrash(path, data); });
}

void LinuxWorkspace::listApplication(const std::filesystem::path& application) {
    writeApplicationEntry(folders_, application);
}

void LinuxWorkspace::unlistApplication() {
    removeApplicationEntry(folders_);
}

QFuture<void> LinuxWorkspace::removeKeyBindings() {
    return QtConcurrent::run(gnomeBinding::removeAll);
}

void LinuxWorkspace::activate() {
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) return;
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible() && takesFocus(*window)) bringToFront(*window);
    }
}

void LinuxWorkspace::bringToFront(QWindow& window) {
    ActivationToken::offer();
    quillon::bringToFront(window);
    ActivationToken::withdraw();
}

void LinuxWorkspace::keepOffTaskBar(QWindow& window) {
    quillon::keepOffTaskBar(window);
}

QScreen* LinuxWorkspace::screenInUse() const {
    if (QScreen* const screen = screenOfActiveWindow()) return screen;
    QScreen* const pointed = QGuiApplication::screenAt(QCursor::pos());
    return pointed ? pointed : QGuiApplication::primaryScreen();
}

bool LinuxWorkspace::pointerPressed() const {
    return quillon::pointerPressed();
}

void LinuxWorkspace::openAfterExit(const std::filesystem::path& application) {
    quillon::openAfterExit(application);
}

void LinuxWorkspace::terminate() {
    QTimer::singleShot(0, QCoreApplication::instance(), [] {
        // quit() would first close every window, and a window may refuse.
        QCoreApplication::exit(0);
    });
}

void LinuxWorkspace::exitNow(int status) {
    std::cout.flush();
    std::_Exit(status);
}

} // namespace quillon
