#include "doctor/Finding.h"

#include "base/Json.h"
#include "base/Translate.h"

#include <QString>

#include <algorithm>

namespace quillon {

template <>
inline constexpr std::array<std::string_view, 4> rawValues<FindingState>{"ok", "warning", "failed",
                                                                         "unknown"};

namespace {

/// In the order of the states.
constexpr std::array<const char*, 4> stateTexts{
    QT_TRANSLATE_NOOP("Doctor", "ok"), QT_TRANSLATE_NOOP("Doctor", "warning"),
    QT_TRANSLATE_NOOP("Doctor", "failed"), QT_TRANSLATE_NOOP("Doctor", "unknown")};

std::string withValues(const std::string& text, const Phrase& phrase) {
    return filled(text, {phrase.values[0], phrase.values[1], phrase.values[2]});
}

std::string stateText(const Finding& finding) {
    return translate("Doctor", stateTexts.at(static_cast<std::size_t>(finding.state)));
}

/// The texts of all findings in a column that is as wide as the longest of them,
/// in characters, and a blank.
std::vector<std::string> column(const std::vector<Finding>& findings,
                                std::string (*text)(const Finding&)) {
    std::vector<QString> texts;
    for (const Finding& finding : findings)
        texts.push_back(QString::fromStdString(text(finding)));
    const auto longest = std::ranges::max_element(texts, {}, &QString::size);
    const qsizetype width = longest == texts.end() ? 0 : longest->size() + 1;
    std::vector<std::string> cells;
    for (const QString& each : texts)
        cells.push_back(each.leftJustified(width).toStdString());
    return cells;
}

std::string foundAndMend(const Finding& finding) {
    const std::string text = shown(finding.found);
    return *finding.mend.text ? text + ". " + shown(finding.mend) : text;
}

std::string titleText(const Finding& finding) {
    return shown(finding.title) + ":";
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
    const std::vector<std::string> states = column(findings, stateText);
    const std::vector<std::string> titles = column(findings, titleText);
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < findings.size(); ++i)
        lines.push_back(states[i] + titles[i] + foundAndMend(findings[i]));
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
