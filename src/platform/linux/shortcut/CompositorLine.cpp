#include "platform/linux/shortcut/CompositorLine.h"

#include "base/Translate.h"

#include <QString>

#include <algorithm>
#include <array>
#include <string_view>

namespace quillon {

namespace {

/// The text between these quotes; what stands in it for a quote is taken care of by `escape`.
QString quoted(QString text, QChar quote, const QString& escape) {
    return quote + text.replace(quote, escape) + quote;
}

/// The text as one word of a shell's command line, quoted only where that is needed.
QString shellWord(const QString& text) {
    const bool plain = std::ranges::all_of(text, [](QChar each) {
        return each.isLetterOrNumber() || QStringLiteral("/._-+,@").contains(each);
    });
    return plain ? text : quoted(text, QLatin1Char{'\''}, QStringLiteral(R"('\'')"));
}

QString commandText(const QString& program) {
    return shellWord(program) + QStringLiteral(" send");
}

/// The program as a compositor's configuration takes it, in the place of "%2".
using Spelling = QString (*)(const QString& program);

QString asXml(const QString& program) {
    return commandText(program).toHtmlEscaped();
}

QString asShellArgument(const QString& program) {
    return shellWord(commandText(program));
}

QString asKdlStrings(const QString& program) {
    QString escaped = program;
    escaped.replace(QLatin1Char{'\\'}, QStringLiteral("\\\\"));
    return quoted(escaped, QLatin1Char{'"'}, QStringLiteral("\\\"")) + QStringLiteral(" \"send\"");
}

struct Compositor {
    const char* name;
    const char* file;
    /// %1 is the small letter, %2 the program with its argument, %3 the capital letter.
    const char* line;
    Spelling spelling;
};

/// The names and forms are those of the compositors' manuals. sway takes the key by its place where
/// it is told to; the others know only the letter.
constexpr Compositor compositors[]{
    {"sway", "~/.config/sway/config", "bindsym --to-code Ctrl+Alt+%1 exec %2", commandText},
    {"hyprland", "~/.config/hypr/hyprland.conf", "bind = CTRL ALT, %3, exec, %2", commandText},
    {"labwc", "~/.config/labwc/rc.xml",
     R"(<keybind key="C-A-%1"><action name="Execute" command="%2"/></keybind>)", asXml},
    {"river", "~/.config/river/init", "riverctl map normal Control+Alt %3 spawn %2",
     asShellArgument},
    {"niri", "~/.config/niri/config.kdl", "Ctrl+Alt+%3 { spawn %2; }", asKdlStrings},
};

constexpr std::array letters{'v', 'p', 'c'};

} // namespace

char letterOf(PhysicalKey key) {
    return letters.at(static_cast<std::size_t>(key));
}

std::string sendCommand(const std::filesystem::path& executable) {
    return commandText(QString::fromStdString(executable.native())).toStdString();
}

std::optional<CompositorLine> compositorLine(const FoundSession& session, PhysicalKey key,
                                             const std::filesystem::path& executable) {
    const auto found = std::ranges::find_if(
        compositors, [&session](const Compositor& each) { return session.isDesktop(each.name); });
    if (found == std::end(compositors)) return std::nullopt;
    const QString letter{QLatin1Char{letterOf(key)}};
    const QString program = found->spelling(QString::fromStdString(executable.native()));
    return CompositorLine{.line = filled(found->line, {letter.toStdString(), program.toStdString(),
                                                       letter.toUpper().toStdString()}),
                          .file = found->file};
}

} // namespace quillon
