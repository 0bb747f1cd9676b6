#include "platform/linux/Hardening.h"

#include <sys/prctl.h>
#include <sys/resource.h>

namespace quillon {

void keepOutOfCoreDumps() {
#ifndef QUILLON_SANITIZED
    ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
    // With 1 the kernel hands a core dump to no program either; with 0 it would.
    constexpr rlimit none{1, 1};
    ::setrlimit(RLIMIT_CORE, &none);
#endif
}

} // namespace quillon
