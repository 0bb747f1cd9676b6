#include "platform/linux/Hardening.h"

#include <sys/prctl.h>
#include <sys/resource.h>

namespace quillon {

void keepOutOfCoreDumps() {
#ifndef QUILLON_SANITIZED
    ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
    constexpr rlimit none{0, 0};
    ::setrlimit(RLIMIT_CORE, &none);
#endif
}

} // namespace quillon
