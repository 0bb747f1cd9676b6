// Takes the place of the C library's clone() in tests under the thread sanitizer. Qt starts
// programs in a child that shares the memory of its parent until it executes them, and the
// sanitizer then takes what the child does for the parent's doing: it never again sees the locks of
// the thread that has started one. Here the child gets a copy of the memory.
#include <cstdarg>

#include <dlfcn.h>
#include <sched.h>

extern "C" __attribute__((visibility("default"))) int
clone(int (*child)(void*), void* stack, int flags, void* argument, ...) noexcept {
    std::va_list rest;
    va_start(rest, argument);
    void* const parentsId = va_arg(rest, void*);
    va_end(rest);
    static auto* const real = reinterpret_cast<decltype(&clone)>(::dlsym(RTLD_NEXT, "clone"));
    const bool sharesUntilExec = (flags & CLONE_VFORK) != 0;
    return real(child, stack, sharesUntilExec ? flags & ~(CLONE_VM | CLONE_VFORK) : flags, argument,
                parentsId);
}
