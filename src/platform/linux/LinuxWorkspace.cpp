#include "platform/linux/LinuxWorkspace.h"

#include "platform/linux/DesktopEntries.h"

#include <QCoreApplication>
#include <QTimer>

#include <cstdlib>
#include <utility>

namespace quillon {

LinuxWorkspace::LinuxWorkspace(Folders folders) : folders_{std::move(folders)} {}

std::vector<std::filesystem::path>
LinuxWorkspace::runningApplications(std::string_view /*identifier*/) const {
    return {};
}

QFuture<bool> LinuxWorkspace::trash(std::filesystem::path /*path*/) {
    return QtFuture::makeReadyFuture(false);
}

void LinuxWorkspace::listApplication(const std::filesystem::path& application) {
    writeApplicationEntry(folders_, application);
}

void LinuxWorkspace::unlistApplication() {
    removeApplicationEntry(folders_);
}

void LinuxWorkspace::activate() {}

void LinuxWorkspace::openAfterExit(const std::filesystem::path& /*application*/) {}

void LinuxWorkspace::terminate() {
    QTimer::singleShot(0, QCoreApplication::instance(), [] { QCoreApplication::quit(); });
}

void LinuxWorkspace::exitNow(int status) {
    std::_Exit(status);
}

} // namespace quillon
