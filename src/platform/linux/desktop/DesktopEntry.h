#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// The main group of a desktop entry file, in the format of freedesktop.org's Desktop Entry
/// standard 1.5. Everything else in the file, such as comments, translations and other groups,
/// stays as it is. (GLib's key files refuse a whole file for one line that they do not know.)
class DesktopEntry {
public:
    /// Takes any bytes; text that is no entry has no values.
    explicit DesktopEntry(std::string_view text);

    /// The raw value, as it is written; none if the key is missing. If a key comes twice, the last
    /// one counts.
    [[nodiscard]] std::optional<std::string> value(std::string_view key) const;

    /// Gives the key this raw value; a new key goes to the end of the group. Nothing happens in a
    /// file without the group.
    void set(std::string_view key, std::string_view value);
    void remove(std::string_view key);

    [[nodiscard]] std::string text() const;

    /// The program as the value of Exec, which starts it without arguments, and of TryExec. None
    /// when an entry cannot name it: when it is relative, no UTF-8, or holds control characters or
    /// the equals sign.
    struct Program {
        std::string exec;
        std::string tryExec;
    };
    [[nodiscard]] static std::optional<Program> program(const std::filesystem::path& executable);

    /// The text as a value of the type string.
    [[nodiscard]] static std::string stringValue(std::string_view text);

    /// The program that a value of Exec starts: a path, or the name of one to be looked for. None
    /// when the value is malformed or starts nothing.
    [[nodiscard]] static std::optional<std::string> programOf(std::string_view exec);

private:
    struct Line {
        std::string text;
        bool inGroup = false;
        /// The key that the line sets; empty for any other line.
        std::string key;
    };

    /// Lines without their '\n'; joined with that they are the file.
    std::vector<Line> lines_;
};

} // namespace quillon
