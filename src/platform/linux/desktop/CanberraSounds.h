#pragma once

#include "platform/Sounds.h"

#include <memory>

namespace quillon {

/// The sounds of the desktop's theme through libcanberra, on a thread of its own, because finding
/// the sound server can take a while.
class CanberraSounds final : public Sounds {
public:
    CanberraSounds();

    /// Lets a sound that was asked for come to its end, which takes at most 2 seconds; 200 ms where
    /// there is no sound server.
    ~CanberraSounds() override;

    void play(Sound sound) override;

private:
    class Player;
    std::shared_ptr<Player> player_;
};

} // namespace quillon
