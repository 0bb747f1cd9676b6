#include "platform/linux/shortcut/GnomeBinding.h"

#include "platform/linux/shortcut/CompositorLine.h"
#include "platform/linux/shortcut/DesktopSettings.h"

#include <QProcess>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <array>
#include <mutex>
#include <vector>

namespace quillon {

namespace {

// The names of GNOME's settings daemon, and of the others that bind keys.
constexpr const char* mediaKeys = "org.gnome.settings-daemon.plugins.media-keys";
constexpr const char* customBinding =
    "org.gnome.settings-daemon.plugins.media-keys.custom-keybinding";
constexpr const char* customList = "custom-keybindings";
constexpr std::array desktopBindings{mediaKeys, "org.gnome.desktop.wm.keybindings",
                                     "org.gnome.shell.keybindings", "org.gnome.mutter.keybindings",
                                     "org.gnome.mutter.wayland.keybindings"};
constexpr std::array bindingKeys{"name", "command", "binding"};

constexpr std::string_view ownPath =
    "/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/quillon-send-";

/// One reading or change at a time: the list of bindings is read, changed and written.
std::mutex& turn() {
    static std::mutex mutex;
    return mutex;
}

std::string pathOf(PhysicalKey key) {
    return std::string{ownPath} + letterOf(key) + "/";
}

bool isOwn(const std::string& path) {
    return path.starts_with(ownPath);
}

std::string acceleratorOf(PhysicalKey key) {
    return std::string{"<Control><Alt>"} + letterOf(key);
}

/// The modifiers and the key of an accelerator, in small letters and one spelling.
QStringList partsOf(std::string_view accelerator) {
    const QString text =
        QString::fromUtf8(accelerator.data(), static_cast<qsizetype>(accelerator.size()));
    QStringList parts =
        text.toLower().split(QRegularExpression{QStringLiteral("[<>]")}, Qt::SkipEmptyParts);
    parts.replaceInStrings(QRegularExpression{QStringLiteral("^(primary|control|ctl)$")},
                           QStringLiteral("ctrl"));
    parts.replaceInStrings(QRegularExpression{QStringLiteral("^mod1$")}, QStringLiteral("alt"));
    return parts;
}

/// The words of a command, of which some may be in quotes of either kind.
QStringList wordsOf(const std::string& command) {
    QString text = QString::fromStdString(command);
    return QProcess::splitCommand(text.replace(QLatin1Char{'\''}, QLatin1Char{'"'}));
}

/// Whether the command that a user has bound is the program's own, by its path or by its name
/// alone.
bool areSameCommands(const std::string& users, const std::string& own) {
    return wordsOf(users) == wordsOf(own) || wordsOf(users) == wordsOf("quillon send");
}

/// The list of bindings with commands, which is the desktop's own.
class CommandBindings {
public:
    CommandBindings() : list_{DesktopSettings::open(mediaKeys)} {}

    /// Whether this desktop has any, and in the form that is known.
    [[nodiscard]] bool exist() const {
        const auto any =
            list_ && list_->has(customList) ? at(pathOf(PhysicalKey::v)) : std::nullopt;
        return any &&
               std::ranges::all_of(bindingKeys, [&](const char* key) { return any->has(key); });
    }

    [[nodiscard]] std::vector<std::string> paths() const { return list_->texts(customList); }

    [[nodiscard]] bool lists(const std::string& path) const {
        return std::ranges::count(paths(), path) != 0;
    }

    /// None where a path is malformed, as one may be that the user has written into the list.
    [[nodiscard]] static std::optional<DesktopSettings> at(const std::string& path) {
        return DesktopSettings::open(customBinding, path.c_str());
    }

    [[nodiscard]] BindingReport find(PhysicalKey key, const std::string& command) const {
        std::string keys = lists(pathOf(key)) ? at(pathOf(key))->text("binding") : "";
        if (keys.empty()) keys = keysByUser(command);
        // Without keys, as the user may leave it, it is none.
        if (keys.empty()) return {.outcome = BindingReport::Outcome::absent};
        return {.outcome = BindingReport::Outcome::present, .trigger = shownKeys(keys)};
    }

    /// The keys to which the user has bound the command without this program's help; empty where
    /// there are none.
    [[nodiscard]] std::string keysByUser(const std::string& command) const {
        for (const std::string& path : paths()) {
            const auto other = isOwn(path) ? std::nullopt : at(path);
            if (other && areSameCommands(other->text("command"), command))
                return other->text("binding");
        }
        return {};
    }

    /// Whether somebody else's binding has the keys.
    [[nodiscard]] bool areTaken(const std::string& accelerator) const {
        const auto same = [&](const std::string& other) { return areSameKeys(other, accelerator); };
        for (const std::string& path : paths()) {
            const auto other = isOwn(path) ? std::nullopt : at(path);
            if (other && same(other->text("binding"))) return true;
        }
        return std::ranges::any_of(desktopBindings, [&](const char* schema) {
            const auto settings = DesktopSettings::open(schema);
            return settings && std::ranges::any_of(settings->allTexts(), [&](const auto& each) {
                       return std::ranges::any_of(each, same);
                   });
        });
    }

    /// Keeps of our own bindings only this one.
    void keepOnly(const std::string& kept) const {
        std::vector<std::string> left = paths();
        std::erase_if(left, [&](const std::string& path) {
            if (!isOwn(path) || path == kept) return false;
            if (const auto binding = at(path))
                std::ranges::for_each(bindingKeys, [&](const char* key) { binding->reset(key); });
            return true;
        });
        if (left != paths()) list_->setTexts(customList, left);
    }

    void add(PhysicalKey key, const std::string& command, const std::string& name) const {
        const auto binding = at(pathOf(key));
        binding->setText("name", name);
        binding->setText("command", command);
        binding->setText("binding", acceleratorOf(key));
        // The daemon looks at a binding when it comes into the list.
        if (lists(pathOf(key))) return;
        std::vector<std::string> more = paths();
        more.push_back(pathOf(key));
        list_->setTexts(customList, more);
    }

private:
    std::optional<DesktopSettings> list_;
};

} // namespace

bool areSameKeys(std::string_view one, std::string_view other) {
    QStringList first = partsOf(one);
    QStringList second = partsOf(other);
    first.sort();
    second.sort();
    return !first.isEmpty() && first == second;
}

std::string shownKeys(std::string_view accelerator) {
    QStringList parts = partsOf(accelerator);
    for (QString& part : parts)
        part.front() = part.front().toUpper();
    return parts.join(QLatin1Char{'+'}).toStdString();
}

BindingReport gnomeBinding::follow(PhysicalKey key, const std::string& command) {
    const std::lock_guard lock{turn()};
    const CommandBindings bindings;
    if (!bindings.exist()) return {.outcome = BindingReport::Outcome::missing};
    bindings.keepOnly(pathOf(key));
    if (bindings.lists(pathOf(key))) {
        const auto own = CommandBindings::at(pathOf(key));
        if (own->text("command") != command) own->setText("command", command);
    }
    BindingReport report = bindings.find(key, command);
    if (report.outcome == BindingReport::Outcome::absent && bindings.areTaken(acceleratorOf(key)))
        report.outcome = BindingReport::Outcome::taken;
    DesktopSettings::sync();
    return report;
}

BindingReport gnomeBinding::add(PhysicalKey key, const std::string& command,
                                const std::string& name) {
    BindingReport before = follow(key, command);
    if (before.outcome != BindingReport::Outcome::absent) return before;
    const std::lock_guard lock{turn()};
    const CommandBindings bindings;
    bindings.add(key, command, name);
    DesktopSettings::sync();
    return bindings.find(key, command);
}

void gnomeBinding::removeAll() {
    const std::lock_guard lock{turn()};
    const CommandBindings bindings;
    if (!bindings.exist()) return;
    bindings.keepOnly({});
    DesktopSettings::sync();
}

} // namespace quillon
