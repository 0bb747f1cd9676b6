#include "doctor/Rules.h"

#include "doctor/Verdicts.h"

#include <QStringList>
#include <QUrl>

namespace quillon {

namespace {

struct Check {
    const char* name;
    const char* title;
    bool needed;
    Verdict (*judge)(const Facts& facts, Names names);
};

/// Before the topics, and after them.
constexpr Check checks[]{
    {"version", QT_TRANSLATE_NOOP("Doctor", "Version"), false, versionVerdict},
    {"program", QT_TRANSLATE_NOOP("Doctor", "Program"), false, programVerdict},
    {"session", QT_TRANSLATE_NOOP("Doctor", "Session"), false, sessionVerdict},
    {"display", QT_TRANSLATE_NOOP("Doctor", "Display"), true, displayVerdict},
    {"clipboard", QT_TRANSLATE_NOOP("Doctor", "Clipboard"), true, clipboardVerdict},
    {"shortcut", QT_TRANSLATE_NOOP("Doctor", "Shortcut"), false, shortcutVerdict},
    {"banner", QT_TRANSLATE_NOOP("Doctor", "Banner"), false, bannerVerdict},
    {"tray", QT_TRANSLATE_NOOP("Doctor", "Icon"), false, trayVerdict},
    {"sound", QT_TRANSLATE_NOOP("Doctor", "Sound"), false, soundVerdict},
    {"data", QT_TRANSLATE_NOOP("Doctor", "Data folder"), false, folderVerdict},
    {"login", QT_TRANSLATE_NOOP("Doctor", "Opening at login"), false, loginVerdict},
    {"updates", QT_TRANSLATE_NOOP("Doctor", "Updates"), false, updatesVerdict},
    {"keyring", QT_TRANSLATE_NOOP("Doctor", "Keyring"), true, keyringVerdict},
    {"network", QT_TRANSLATE_NOOP("Doctor", "Network"), true, networkVerdict},
    {"clock", QT_TRANSLATE_NOOP("Doctor", "Clock"), false, clockVerdict},
    {"bot", QT_TRANSLATE_NOOP("Doctor", "Bot"), true, botVerdict},
    {"group", QT_TRANSLATE_NOOP("Doctor", "Group"), true, groupVerdict},
    {"topics", QT_TRANSLATE_NOOP("Doctor", "Topics"), true, forumVerdict},
    {"rights", QT_TRANSLATE_NOOP("Doctor", "Rights"), false, rightsVerdict},
};

Finding finding(std::string check, Phrase title, bool needed, Verdict verdict) {
    return {.check = std::move(check),
            .title = std::move(title),
            .needed = needed,
            .state = verdict.state,
            .found = std::move(verdict.found),
            .mend = std::move(verdict.mend)};
}

bool isBelow(const QString& host, const QString& domain) {
    const QString name = domain.startsWith(QLatin1Char{'.'}) ? domain.mid(1) : domain;
    return !name.isEmpty() && (host == name || host.endsWith(QLatin1Char{'.'} + name));
}

} // namespace

std::vector<Finding> findings(const Facts& facts, Names names) {
    std::vector<Finding> all;
    for (const Check& each : checks)
        all.push_back(
            finding(each.name, {.text = each.title}, each.needed, each.judge(facts, names)));
    for (std::size_t index = 0; index < facts.config.topics.size(); ++index) {
        const Topic& topic = facts.config.topics[index];
        const Phrase title{.text = QT_TRANSLATE_NOOP("Doctor", "Topic %1"),
                           .values = {names == Names::told ? topic.name : topic.key}};
        all.push_back(finding("topic-" + topic.key, title, true, topicVerdict(facts, index)));
    }
    return all;
}

std::string proxyVariable(const std::string& address,
                          const std::function<std::string(const std::string&)>& environment) {
    const QUrl url{QString::fromStdString(address)};
    const auto first = [&](const std::vector<std::string>& variables) -> std::string {
        for (const std::string& each : variables) {
            if (!environment(each).empty()) return each;
        }
        return {};
    };
    // http_proxy in capitals is what a web server makes of a request's header "Proxy".
    const bool plain = url.scheme() == u"http";
    const std::string variable =
        plain ? first({"http_proxy", "all_proxy", "ALL_PROXY"})
              : first({"https_proxy", "HTTPS_PROXY", "all_proxy", "ALL_PROXY"});
    const std::string spared = environment(first({"no_proxy", "NO_PROXY"}));
    for (const QString& domain :
         QString::fromStdString(spared).split(QLatin1Char{','}, Qt::SkipEmptyParts)) {
        if (domain.trimmed() == u"*" || isBelow(url.host(), domain.trimmed())) return {};
    }
    return variable;
}

} // namespace quillon
