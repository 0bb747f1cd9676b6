#include "ui/setup/Step.h"

namespace quillon {

int step(const SetupProgress& progress) {
    if (!progress.tokenSaved) return 1;
    if (!progress.groupFound) return 3;
    return progress.connected ? stepCount + 1 : 4;
}

bool isDone(int n, const SetupProgress& progress) {
    if (n <= 2) return progress.tokenSaved;
    return n == 3 ? progress.groupFound : progress.connected;
}

bool isCurrent(int n, const SetupProgress& progress) {
    return step(progress) == (n == 2 ? 1 : n);
}

} // namespace quillon
