#include "platform/linux/DesktopEntries.h"

namespace quillon {

void writeApplicationEntry(const Folders& /*folders*/,
                           const std::filesystem::path& /*application*/) {}

void removeApplicationEntry(const Folders& /*folders*/) {}

} // namespace quillon
