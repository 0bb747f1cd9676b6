#include "platform/linux/XdgLoginItem.h"

#include <utility>

namespace quillon {

XdgLoginItem::XdgLoginItem(Folders folders, std::filesystem::path executable)
    : folders_{std::move(folders)},
      executable_{std::move(executable)} {}

LoginItem::Status XdgLoginItem::status() const {
    return Status::notRegistered;
}

bool XdgLoginItem::registerItem() {
    return false;
}

bool XdgLoginItem::unregisterItem() {
    return false;
}

void XdgLoginItem::follow(const std::filesystem::path& /*executable*/) {}

} // namespace quillon
