#pragma once

#include "base/RawValue.h"

#include <array>
#include <string>
#include <vector>

namespace quillon {

/// What was found of one of the things that the program lives on.
enum class FindingState {
    ok,
    warning, ///< it works with less, or not at the moment
    failed,
    unknown, ///< it could not be looked at, most often because something before it failed
};

/// A text with values at its places "%1" to "%3", marked for translation in the context "Doctor".
struct Phrase {
    const char* text = "";
    std::array<std::string, 3> values{};
};

/// In the user's language, and as it is written in the source, for other programs.
[[nodiscard]] std::string shown(const Phrase& phrase);
[[nodiscard]] std::string plain(const Phrase& phrase);

/// One line of the report.
struct Finding {
    /// The name of the check, for other programs.
    std::string check;
    /// The same for people.
    Phrase title;
    /// Without it, nothing can be sent.
    bool needed = false;
    FindingState state = FindingState::unknown;
    Phrase found;
    /// What the user can do; empty where there is nothing to mend.
    Phrase mend;
};

/// Whether all that a send needs works, as far as is known.
[[nodiscard]] bool canSend(const std::vector<Finding>& findings);

/// Each thing that has failed, in a sentence or two, for people. What a send needs comes first.
[[nodiscard]] std::vector<std::string> failures(const std::vector<Finding>& findings);

/// A line for each finding, for people, which may hold what others said; and one JSON object: "ok"
/// (see canSend) and "checks", an array of objects with "check", "state" ("ok", "warning",
/// "failed", "unknown"), "needed", "found" and, where there is one, "mend".
[[nodiscard]] std::vector<std::string> findingLines(const std::vector<Finding>& findings);
[[nodiscard]] std::string findingsJson(const std::vector<Finding>& findings);

} // namespace quillon
