#pragma once

#include "platform/Bundle.h"

#include <QByteArray>

namespace quillon {

/// The program's path below its application folder.
inline constexpr const char* bundleProgram = "Contents/Linux/quillon";
/// The property list's path below the application folder.
inline constexpr const char* bundlePropertyList = "Contents/Info.plist";

/// The application folder that this program belongs to; none if it lies elsewhere.
[[nodiscard]] std::optional<std::filesystem::path>
applicationFolder(const std::filesystem::path& program);

/// The bundle of the running program. Outside an application folder it has the identifier and the
/// version that the program was built with, and nothing else.
[[nodiscard]] Bundle runningBundle();

/// The bundle in this application folder; without values if its property list cannot be read.
[[nodiscard]] Bundle bundleAt(const std::filesystem::path& folder);

/// The text values of an XML property list's outermost dictionary; empty if the file is broken
/// anywhere.
[[nodiscard]] std::map<std::string, std::string, std::less<>>
parsePropertyList(const QByteArray& xml);

} // namespace quillon
