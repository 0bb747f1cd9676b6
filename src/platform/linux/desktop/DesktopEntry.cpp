#include "platform/linux/desktop/DesktopEntry.h"

#include <QByteArrayView>

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

/// A program that starts another one.
constexpr std::string_view environmentProgram = "env";

constexpr std::string_view mainGroup = "[Desktop Entry]";

/// An argument of Exec with one of these needs quotes.
constexpr std::string_view reserved = " \t\n\"'\\><~|&;$*?#()`";
/// Inside quotes, these need a backslash.
constexpr std::string_view escapedInQuotes = "\"`$\\";

std::string_view withoutBlanks(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool isControl(char byte) {
    return (byte >= 0 && byte < 0x20) || byte == 0x7F;
}

/// The text as an argument of Exec, quoted if necessary, but without the escapes of string values.
std::string asArgument(std::string_view argument) {
    const bool needsQuotes = argument.find_first_of(reserved) != std::string_view::npos;
    std::string text;
    for (const char byte : argument) {
        if (escapedInQuotes.find(byte) != std::string_view::npos) text += '\\';
        // A single percent sign would begin a field code.
        if (byte == '%') text += '%';
        text += byte;
    }
    return needsQuotes ? '"' + text + '"' : text;
}

/// A string value with its escapes resolved; unknown ones stay as they are.
std::string unescaped(std::string_view value) {
    constexpr std::string_view codes = R"(sntr\)";
    constexpr std::string_view meanings = " \n\t\r\\";
    std::string text;
    for (std::size_t index = 0; index < value.size(); ++index) {
        const bool starts = value[index] == '\\' && index + 1 < value.size();
        const std::size_t code = starts ? codes.find(value[index + 1]) : std::string_view::npos;
        if (code != std::string_view::npos) {
            text += meanings[code];
            ++index;
        } else {
            text += value[index];
        }
    }
    return text;
}

/// The arguments of an Exec command line, unquoted; empty if a quote is not closed.
std::vector<std::string> argumentsOf(std::string_view command) {
    std::vector<std::string> arguments;
    bool inArgument = false;
    bool inQuotes = false;
    for (std::size_t index = 0; index < command.size(); ++index) {
        const bool escape = command[index] == '\\' && index + 1 < command.size();
        const char byte = command[escape ? ++index : index];
        if (!escape && !inQuotes && byte == ' ') {
            inArgument = false;
            continue;
        }
        if (!std::exchange(inArgument, true)) arguments.emplace_back();
        if (!escape && byte == '"') {
            inQuotes = !inQuotes;
        } else {
            arguments.back() += byte;
        }
    }
    return inQuotes ? std::vector<std::string>{} : arguments;
}

} // namespace

DesktopEntry::DesktopEntry(std::string_view text) {
    bool inGroup = false;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        Line line;
        line.text = text.substr(start, end - start);
        if (line.text.starts_with('[')) inGroup = withoutBlanks(line.text) == mainGroup;
        line.inGroup = inGroup;
        const std::size_t equals = line.text.find('=');
        if (inGroup && equals != std::string::npos && !line.text.starts_with('#'))
            line.key = withoutBlanks(std::string_view{line.text}.substr(0, equals));
        lines_.push_back(std::move(line));
        start = end + 1;
    }
}

std::optional<std::string> DesktopEntry::value(std::string_view key) const {
    const auto line = std::find_if(lines_.rbegin(), lines_.rend(),
                                   [&](const Line& each) { return each.key == key; });
    if (line == lines_.rend()) return std::nullopt;
    const std::string_view text = line->text;
    return std::string{withoutBlanks(text.substr(text.find('=') + 1))};
}

void DesktopEntry::set(std::string_view key, std::string_view value) {
    const auto last =
        std::find_if(lines_.rbegin(), lines_.rend(), [](const Line& line) { return line.inGroup; });
    if (last == lines_.rend()) return;
    const bool dosFile = last->text.ends_with('\r') || lines_.front().text.ends_with('\r');
    const std::string text = std::string{key} + '=' + std::string{value} + (dosFile ? "\r" : "");
    bool found = false;
    for (Line& line : lines_) {
        if (line.key != key) continue;
        line.text = text;
        found = true;
    }
    if (found) return;
    // Empty lines separate the group from the next, so the new line goes before them.
    const auto used = std::find_if(last, lines_.rend(), [](const Line& line) {
        return line.inGroup && !withoutBlanks(line.text).empty();
    });
    lines_.insert(used.base(), Line{text, true, std::string{key}});
}

void DesktopEntry::remove(std::string_view key) {
    std::erase_if(lines_, [&](const Line& line) { return line.key == key; });
}

std::string DesktopEntry::text() const {
    std::string text;
    for (const Line& line : lines_) {
        if (&line != &lines_.front()) text += '\n';
        text += line.text;
    }
    return text;
}

std::optional<DesktopEntry::Program>
DesktopEntry::program(const std::filesystem::path& executable) {
    const std::string& path = executable.native();
    const bool nameable = executable.is_absolute() && QByteArrayView{path}.isValidUtf8() &&
                          path.find('=') == std::string::npos &&
                          std::ranges::none_of(path, isControl);
    if (!nameable) return std::nullopt;
    // GLib looks the program up before it turns doubled percent signs into single ones.
    const bool needsStarter = path.find('%') != std::string::npos;
    const std::string starter = needsStarter ? std::string{environmentProgram} + ' ' : "";
    return Program{.exec = starter + stringValue(asArgument(path)), .tryExec = stringValue(path)};
}

std::string DesktopEntry::stringValue(std::string_view text) {
    std::string value;
    for (const char byte : text) {
        if (byte == '\\') value += '\\';
        value += byte;
    }
    return value;
}

std::optional<std::string> DesktopEntry::programOf(std::string_view exec) {
    const std::vector<std::string> arguments = argumentsOf(unescaped(exec));
    auto program = arguments.begin();
    if (program != arguments.end() && *program == environmentProgram) {
        program = std::find_if(program + 1, arguments.end(), [](const std::string& argument) {
            return argument.find('=') == std::string::npos;
        });
    }
    if (program == arguments.end() || program->empty()) return std::nullopt;
    std::string name = *program;
    for (std::size_t at = 0; (at = name.find("%%", at)) != std::string::npos; ++at)
        name.erase(at, 1);
    return name;
}

} // namespace quillon
