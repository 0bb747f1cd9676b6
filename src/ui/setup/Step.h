#pragma once

namespace quillon {

/// How far the setup has come, according to the store.
struct SetupProgress {
    bool tokenSaved = false;
    bool groupFound = false;
    /// Whether the group is known and every topic has its thread.
    bool connected = false;
};

/// The number of steps. When all are done, step() is one more.
inline constexpr int stepCount = 4;

/// The step that the user is at: 1 (which stands for 1 and 2, since making the bot and pasting its
/// token go together), 3, 4, or 5 when all are done.
[[nodiscard]] int step(const SetupProgress& progress);

/// Whether the step with this number, from 1 to 4, is done.
[[nodiscard]] bool isDone(int n, const SetupProgress& progress);

/// Whether the step is the next one to do. Steps 1 and 2 are the next ones together.
[[nodiscard]] bool isCurrent(int n, const SetupProgress& progress);

} // namespace quillon
