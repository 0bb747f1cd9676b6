#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace quillon {

/// The program's unique name: on the session bus, in file names, and as the identifier of released
/// bundles.
inline constexpr const char* applicationIdentifier = "dev.vostrel.quillon";

/// The program as it lies on disk: an application folder ("Quillon.app") or, where a package
/// installed it or it was just built, the executable alone.
struct Bundle {
    /// The application folder; the executable itself when there is none.
    std::filesystem::path url;
    std::filesystem::path executable;
    /// The text values of its property list, by key.
    std::map<std::string, std::string, std::less<>> info;

    /// A value of the property list; none when it is missing or no text.
    [[nodiscard]] std::optional<std::string> text(std::string_view key) const;
    /// Empty when the bundle names none.
    [[nodiscard]] std::string identifier() const { return text("CFBundleIdentifier").value_or(""); }
    /// The name of the bundle's own folder below the cache and the like: the identifier, or the
    /// program's usual one where the identifier could be taken for something else, such as a path
    /// or a single word.
    [[nodiscard]] std::string folderName() const;
    /// The version that the user sees; "dev" when the bundle names none.
    [[nodiscard]] std::string shortVersion() const {
        return text("CFBundleShortVersionString").value_or("dev");
    }
    [[nodiscard]] bool isApplication() const { return url.extension() == ".app"; }
};

} // namespace quillon
