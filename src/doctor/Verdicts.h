#pragma once

#include "doctor/Facts.h"
#include "doctor/Finding.h"
#include "doctor/Rules.h"

#include <cstddef>

namespace quillon {

/// What a check comes to.
struct Verdict {
    FindingState state = FindingState::unknown;
    Phrase found{};
    Phrase mend{};
};

/// A row of a table of them.
struct VerdictRow {
    FindingState state;
    const char* found;
    const char* mend;
};

// The machine: DesktopVerdicts.cpp, MachineVerdicts.cpp.
[[nodiscard]] Verdict versionVerdict(const Facts& facts, Names names);
[[nodiscard]] Verdict programVerdict(const Facts& facts, Names names);
[[nodiscard]] Verdict sessionVerdict(const Facts& facts, Names names);
[[nodiscard]] Verdict displayVerdict(const Facts& facts, Names names);
[[nodiscard]] Verdict clipboardVerdict(const Facts& facts, Names names);
[[nodiscard]] Verdict shortcutVerdict(const Facts& facts, Names names);
[[nodiscard]] Verdict bannerVerdict(const Facts& facts, Names names);
[[nodiscard]] Verdict trayVerdict(const Facts& facts, Names names);
[[nodiscard]] Verdict soundVerdict(const Facts& facts, Names names);
[[nodiscard]] Verdict folderVerdict(const Facts& facts, Names names);
[[nodiscard]] Verdict loginVerdict(const Facts& facts, Names names);
[[nodiscard]] Verdict updatesVerdict(const Facts& facts, Names names);

// The way to the group: TelegramVerdicts.cpp.
[[nodiscard]] Verdict keyringVerdict(const Facts& facts, Names names);
[[nodiscard]] Verdict networkVerdict(const Facts& facts, Names names);
[[nodiscard]] Verdict clockVerdict(const Facts& facts, Names names);
[[nodiscard]] Verdict botVerdict(const Facts& facts, Names names);
[[nodiscard]] Verdict groupVerdict(const Facts& facts, Names names);
[[nodiscard]] Verdict forumVerdict(const Facts& facts, Names names);
[[nodiscard]] Verdict rightsVerdict(const Facts& facts, Names names);
/// Of the topic at this place of the settings.
[[nodiscard]] Verdict topicVerdict(const Facts& facts, std::size_t index);

} // namespace quillon
