#pragma once

#include "platform/Bundle.h"

#include <QByteArray>

namespace quillon {

/// Where an application folder has its program, below the folder itself.
inline constexpr const char* bundleProgram = "Contents/Linux/quillon";
/// Where it has its property list.
inline constexpr const char* bundlePropertyList = "Contents/Info.plist";

/// The application folder that has this program; none when it lies elsewhere.
[[nodiscard]] std::optional<std::filesystem::path>
applicationFolder(const std::filesystem::path& program);

/// The bundle of the running program. Outside an application folder it has the identifier and the
/// version that the program was built with, and nothing else.
[[nodiscard]] Bundle runningBundle();

/// The application folder with its property list; no values where that cannot be read.
[[nodiscard]] Bundle bundleAt(const std::filesystem::path& folder);

/// The text values of an XML property list's outermost dictionary; none of them when the file is
/// broken anywhere.
[[nodiscard]] std::map<std::string, std::string, std::less<>>
parsePropertyList(const QByteArray& xml);

} // namespace quillon
