#pragma once

#include "platform/Sounds.h"

#include <memory>

namespace quillon {

/// Plays the desktop theme's sounds through libcanberra, on a thread of its own, because finding
/// the sound server can take a while.
class CanberraSounds final : public Sounds {
public:
    CanberraSounds();

    /// Lets the last sound end, for at most 2 seconds; for 200 ms if there is no sound server.
    ~CanberraSounds() override;

    void play(Sound sound) override;

private:
    class Player;
    std::shared_ptr<Player> player_;
};

} // namespace quillon
