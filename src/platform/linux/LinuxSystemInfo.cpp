#include "platform/linux/LinuxSystemInfo.h"

#include "platform/linux/files/PosixFileSystem.h"

#include <QLocale>
#include <QVersionNumber>

#include <array>

#include <sys/utsname.h>

namespace quillon {

namespace {

/// No product name is longer, in bytes.
constexpr qint64 maximumNameSize = 4096;

/// The firmware's tables on PCs, then the device tree of most other machines.
constexpr std::array productNameFiles{"/sys/class/dmi/id/product_name",
                                      "/sys/firmware/devicetree/base/model"};

/// "6.1.0-18-amd64" gives "6.1.0". Missing numbers are 0.
std::string threeNumbers(const char* release) {
    const auto number = QVersionNumber::fromString(QLatin1String{release});
    return QVersionNumber{number.majorVersion(), number.minorVersion(), number.microVersion()}
        .toString()
        .toStdString();
}

} // namespace

SystemInfo linuxSystemInfo() {
    utsname kernel{};
    ::uname(&kernel);
    SystemInfo info{.version = threeNumbers(kernel.release),
                    .locale = QLocale::system().name().toStdString(),
                    .productName = {},
                    .hardwareModel = kernel.sysname};
    for (const char* file : productNameFiles) {
        const FileReading reading = PosixFileSystem{}.read(file, maximumNameSize);
        if (reading.outcome != FileReading::Outcome::read) continue;
        info.productName = reading.bytes;
        break;
    }
    return info;
}

} // namespace quillon
