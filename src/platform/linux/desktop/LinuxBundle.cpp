#include "platform/linux/desktop/LinuxBundle.h"

#include "platform/linux/files/PosixFileSystem.h"

#include <QXmlStreamReader>

#include <system_error>

namespace quillon {

namespace {

using std::filesystem::path;

/// Our property lists have 1 KB; files larger than this, in bytes, are not read.
constexpr qint64 maximumPropertyListSize = 1'000'000;

} // namespace

std::optional<path> applicationFolder(const path& program) {
    const path inside{bundleProgram};
    path folder = program;
    for (auto part = inside.begin(); part != inside.end(); ++part)
        folder = folder.parent_path();
    if (folder.extension() != ".app" || folder / inside != program) return std::nullopt;
    return folder;
}

std::map<std::string, std::string, std::less<>> parsePropertyList(const QByteArray& xml) {
    std::map<std::string, std::string, std::less<>> values;
    QXmlStreamReader reader{xml};
    if (!reader.readNextStartElement() || reader.name() != u"plist") return {};
    if (!reader.readNextStartElement() || reader.name() != u"dict") return {};
    std::string key;
    while (reader.readNextStartElement()) {
        if (reader.name() == u"key") {
            key = reader.readElementText().toStdString();
        } else if (reader.name() == u"string") {
            values[key] = reader.readElementText().toStdString();
        } else {
            reader.skipCurrentElement();
        }
    }
    while (!reader.atEnd())
        reader.readNext();
    return reader.hasError() ? decltype(values){} : values;
}

Bundle bundleAt(const path& folder) {
    Bundle bundle{.url = folder, .executable = folder / bundleProgram, .info = {}};
    const FileReading list =
        PosixFileSystem{}.read(folder / bundlePropertyList, maximumPropertyListSize);
    bundle.info = parsePropertyList(list.bytes);
    return bundle;
}

Bundle runningBundle() {
    std::error_code error;
    const path program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (const auto folder = applicationFolder(program)) return bundleAt(*folder);
    return {.url = program,
            .executable = program,
            .info = {{"CFBundleIdentifier", applicationIdentifier},
                     {"CFBundleShortVersionString", QUILLON_VERSION},
                     {"CFBundleVersion", QUILLON_VERSION}}};
}

} // namespace quillon
