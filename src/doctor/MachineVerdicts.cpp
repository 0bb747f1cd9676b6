// The program, its folder, sound, updates and login.
#include "doctor/Verdicts.h"

#include <QtGlobal>

namespace quillon {

namespace {

using enum FindingState;

constexpr std::uint64_t megabyte = 1'000'000;
/// Settings and history stay below this, in bytes.
constexpr std::uint64_t leastRoom = 5 * megabyte;

std::string joined(const std::vector<std::string>& texts) {
    std::string all;
    for (const std::string& text : texts)
        all += (all.empty() ? "" : ", ") + text;
    return all;
}

/// The path with "~" for the home folder. Elsewhere, folders can be named after people.
std::string pathText(const Facts& facts, Names names) {
    const std::filesystem::path below = facts.dataFolder.lexically_relative(facts.home);
    if (!below.empty() && *below.begin() != "..") return "~/" + below.string();
    return names == Names::told ? facts.dataFolder.string()
                                : "…/" + facts.dataFolder.filename().string();
}

/// In the order of LoginItem::Status.
constexpr VerdictRow loginRows[]{
    {ok, QT_TRANSLATE_NOOP("Doctor", "off"), ""},
    {ok, QT_TRANSLATE_NOOP("Doctor", "on"), ""},
    {ok, QT_TRANSLATE_NOOP("Doctor", "switched off in the desktop's settings"), ""},
    {failed, QT_TRANSLATE_NOOP("Doctor", "on, but the program that it would open is not there"),
     QT_TRANSLATE_NOOP("Doctor", "Switch it on again: quillon launch-at-login on")},
};

} // namespace

Verdict versionVerdict(const Facts& facts, Names /*names*/) {
    if (!facts.system) return {ok, {"%1", {facts.version}}};
    return {ok,
            {QT_TRANSLATE_NOOP("Doctor", "%1 on %2, with %3"),
             {facts.version, facts.system->system, joined(facts.system->libraries)}}};
}

Verdict programVerdict(const Facts& facts, Names /*names*/) {
    if (facts.stays) return {ok, {QT_TRANSLATE_NOOP("Doctor", "runs, and waits for the shortcut")}};
    return {warning,
            {QT_TRANSLATE_NOOP("Doctor", "does not run, so that nothing waits for the shortcut")},
            {QT_TRANSLATE_NOOP("Doctor", "Start Quillon.")}};
}

Verdict soundVerdict(const Facts& facts, Names /*names*/) {
    if (!facts.config.playSound)
        return {ok, {QT_TRANSLATE_NOOP("Doctor", "switched off in the settings")}};
    if (facts.sound == Presence::answers)
        return {ok, {QT_TRANSLATE_NOOP("Doctor", "there is a sound server or a sound card")}};
    return {warning,
            {QT_TRANSLATE_NOOP("Doctor", "there is no sound server, and no sound card")},
            {QT_TRANSLATE_NOOP("Doctor", "Start PipeWire or PulseAudio.")}};
}

Verdict folderVerdict(const Facts& facts, Names names) {
    const std::string path = pathText(facts, names);
    if (!facts.folder) {
        return {failed,
                {QT_TRANSLATE_NOOP("Doctor", "%1 does not answer"), {path}},
                {QT_TRANSLATE_NOOP("Doctor", "See whether its disk or network share is there.")}};
    }
    if (!facts.folder->exists || !facts.folder->writable) {
        return {failed,
                {facts.folder->exists ? QT_TRANSLATE_NOOP("Doctor", "%1 cannot be written")
                                      : QT_TRANSLATE_NOOP("Doctor", "%1 cannot be made"),
                 {path}},
                {QT_TRANSLATE_NOOP("Doctor", "Give yourself the rights to it.")}};
    }
    const std::uint64_t room = facts.folder->room.value_or(leastRoom);
    if (room < leastRoom) {
        return {failed,
                {QT_TRANSLATE_NOOP("Doctor", "the disk of %1 is full"), {path}},
                {QT_TRANSLATE_NOOP("Doctor", "Make room on it.")}};
    }
    if (facts.folder->open) {
        return {warning,
                {QT_TRANSLATE_NOOP("Doctor", "others can look into %1"), {path}},
                {QT_TRANSLATE_NOOP("Doctor", "Take their rights: chmod 700 %1"), {path}}};
    }
    return {ok,
            {QT_TRANSLATE_NOOP("Doctor", "%1 can be written; %2 MB free"),
             {path, std::to_string(room / megabyte)}}};
}

Verdict loginVerdict(const Facts& facts, Names /*names*/) {
    const VerdictRow& row = loginRows[static_cast<std::size_t>(facts.login)];
    return {row.state, {row.found}, {row.mend}};
}

Verdict updatesVerdict(const Facts& facts, Names /*names*/) {
    if (!facts.updatesItself)
        return {ok, {QT_TRANSLATE_NOOP("Doctor", "this copy does not update itself")}};
    if (facts.replaceable) return {ok, {QT_TRANSLATE_NOOP("Doctor", "Quillon updates itself")}};
    return {warning,
            {QT_TRANSLATE_NOOP("Doctor", "Quillon cannot replace itself where it lies")},
            {QT_TRANSLATE_NOOP("Doctor", "Move it to a folder of yours.")}};
}

} // namespace quillon
