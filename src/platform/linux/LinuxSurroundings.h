#pragma once

#include "platform/Surroundings.h"

namespace quillon {

/// Looks at a Linux desktop as the environment describes it. Each look has a thread of its own,
/// which is left behind where what it looks at hangs.
class LinuxSurroundings final : public Surroundings {
public:
    [[nodiscard]] QFuture<SystemTraits> system() const override;
    [[nodiscard]] QFuture<XServerTraits> xServer() const override;
    [[nodiscard]] QFuture<CompositorTraits> compositor() const override;
    [[nodiscard]] QFuture<ClipboardTraits> clipboard() const override;
    [[nodiscard]] QFuture<BusTraits> bus() const override;
    [[nodiscard]] QFuture<FolderTraits> folder(std::filesystem::path path) const override;
    [[nodiscard]] QFuture<Presence> sound() const override;
    /// Plasma alone tells.
    [[nodiscard]] QFuture<std::string> holder(PhysicalKey key) const override;
    /// Only on X11.
    [[nodiscard]] std::optional<bool> isFree(PhysicalKey key) const override;
};

} // namespace quillon
