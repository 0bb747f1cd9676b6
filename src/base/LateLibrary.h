#pragma once

#include <dlfcn.h>

#include <mutex>

namespace quillon {

/// A shared library that is loaded when it is first needed and then stays. Linked, it would be
/// loaded at every start, together with all that it depends on.
class LateLibrary {
public:
    /// `name` is the library's own (its soname), as in "libarchive.so.13".
    constexpr explicit LateLibrary(const char* name) : name_{name} {}

    /// Loads it if nobody has yet; false if it is missing, and none of its functions may be called.
    /// Takes milliseconds the first time. Thread-safe.
    [[nodiscard]] bool load() const {
        std::call_once(once_, [this] { handle_ = ::dlopen(name_, RTLD_LAZY | RTLD_LOCAL); });
        return handle_ != nullptr;
    }

    /// The symbol of the library, or of those that it depends on; null if there is none.
    [[nodiscard]] void* find(const char* symbol) const {
        return load() ? ::dlsym(handle_, symbol) : nullptr;
    }

private:
    const char* name_;
    mutable std::once_flag once_;
    mutable void* handle_ = nullptr;
};

/// One of its functions, which is called by the same name and with the same arguments as if it were
/// linked. Each call looks it up, in less than a microsecond.
template <typename Function>
class LateFunction {
public:
    /// The last argument only gives the type.
    constexpr LateFunction(const LateLibrary& library, const char* name, Function /*none*/)
        : library_{library},
          name_{name} {}

    // Not explicit: what converts to a pointer to a function can be called, and passed on, like it.
    operator Function() const { return reinterpret_cast<Function>(library_.find(name_)); }

private:
    const LateLibrary& library_;
    const char* name_;
};

/// Declares the library's function once more, in the namespace of its callers.
#define QUILLON_LATE(library, function)                                                            \
    inline constexpr LateFunction function {                                                       \
        library, #function, decltype(&::function) {}                                               \
    }

} // namespace quillon
