#pragma once

namespace quillon {

/// Short sounds that confirm a send.
enum class Sound { pop, basso };

/// Plays sounds of the desktop's sound theme; silent where there is no sound server.
class Sounds {
public:
    virtual ~Sounds() = default;

    /// Returns at once; the sound plays on.
    virtual void play(Sound sound) = 0;
};

} // namespace quillon
