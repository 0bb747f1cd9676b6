#include "platform/linux/files/Place.h"

#include <memory>
#include <string_view>

#include <dirent.h>

namespace quillon {

Listing listing(int folder) {
    // Reading moves a descriptor's position, so this opens one of its own.
    const int number = openItself({folder, "."}, O_RDONLY | O_DIRECTORY);
    if (number < 0) return {};
    const std::unique_ptr<DIR, int (*)(DIR*)> stream{::fdopendir(number), ::closedir};
    if (!stream) {
        ::close(number);
        return {};
    }
    Listing result;
    errno = 0;
    while (const dirent* entry = ::readdir(stream.get())) {
        const std::string_view name{entry->d_name};
        if (name != "." && name != "..") result.names.emplace_back(name);
        errno = 0;
    }
    result.complete = errno == 0;
    return result;
}

} // namespace quillon
