#include "doctor/Finding.h"

#include "base/Json.h"
#include "base/Translate.h"

#include <QString>

#include <algorithm>
#include <iterator>

namespace quillon {

template <>
inline constexpr std::array<std::string_view, 4> rawValues<FindingState>{"ok", "warning", "failed",
                                                                         "unknown"};

namespace {

/// In the order of the states.
constexpr std::array<const char*, 4> stateTexts{
    QT_TRANSLATE_NOOP("Doctor", "ok"), QT_TRANSLATE_NOOP("Doctor", "warning"),
    QT_TRANSLATE_NOOP("Doctor", "failed"), QT_TRANSLATE_NOOP("Doctor", "unknown")};

/// The widths of the first two columns, in characters.
constexpr int stateWidth = 9;
constexpr int titleWidth = 18;

std::string withValues(const std::string& text, const Phrase& phrase) {
    return filled(text, {phrase.values[0], phrase.values[1], phrase.values[2]});
}

std::string column(const std::string& text, int width) {
    return QString::fromStdString(text).leftJustified(width).toStdString();
}

std::string foundAndMend(const Finding& finding) {
    const std::string text = shown(finding.found);
    return *finding.mend.text ? text + ". " + shown(finding.mend) : text;
}

std::string line(const Finding& finding) {
    const char* const state = stateTexts.at(static_cast<std::size_t>(finding.state));
    return column(translate("Doctor", state), stateWidth) +
           column(shown(finding.title) + ":", titleWidth) + foundAndMend(finding);
}

} // namespace

std::string shown(const Phrase& phrase) {
    return *phrase.text ? withValues(translate("Doctor", phrase.text), phrase) : std::string{};
}

std::string plain(const Phrase& phrase) {
    return withValues(phrase.text, phrase);
}

bool canSend(const std::vector<Finding>& findings) {
    return std::ranges::none_of(findings, [](const Finding& each) {
        return each.needed && each.state == FindingState::failed;
    });
}

std::vector<std::string> failures(const std::vector<Finding>& findings) {
    std::vector<std::string> sentences;
    for (const bool needed : {true, false}) {
        for (const Finding& each : findings) {
            if (each.state == FindingState::failed && each.needed == needed)
                sentences.push_back(shown(each.title) + ": " + foundAndMend(each));
        }
    }
    return sentences;
}

std::vector<std::string> findingLines(const std::vector<Finding>& findings) {
    std::vector<std::string> lines;
    std::ranges::transform(findings, std::back_inserter(lines), line);
    return lines;
}

std::string findingsJson(const std::vector<Finding>& findings) {
    Json object{{"ok", canSend(findings)}, {"checks", Json::array()}};
    for (const Finding& finding : findings) {
        Json entry{{"check", finding.check},
                   {"state", rawValue(finding.state)},
                   {"needed", finding.needed},
                   {"found", plain(finding.found)}};
        if (*finding.mend.text) entry["mend"] = plain(finding.mend);
        object["checks"].push_back(std::move(entry));
    }
    return writeJson(object) + "\n";
}

} // namespace quillon
