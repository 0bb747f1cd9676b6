#pragma once

namespace quillon {

/// How far the setup has come, as the store knows it.
struct SetupProgress {
    bool tokenSaved = false;
    bool groupFound = false;
    /// The group is known and every topic has its thread.
    bool connected = false;

    bool operator==(const SetupProgress&) const = default;
};

/// How many steps the guide has; past the last one everything is done.
inline constexpr int stepCount = 4;

/// Where in the guide the user is: 1 (both make the bot and paste its token), 3, 4, or 5 when
/// everything is done.
[[nodiscard]] int step(const SetupProgress& progress);

/// Whether the step with this number, from 1 to 4, is done.
[[nodiscard]] bool isDone(int n, const SetupProgress& progress);

/// Whether it is the one to do next; the first two are so together.
[[nodiscard]] bool isCurrent(int n, const SetupProgress& progress);

} // namespace quillon
