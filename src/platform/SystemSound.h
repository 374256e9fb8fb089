#pragma once

namespace quillmere {

enum class Sound {
    Beep,
    Glass, ///< something is due
    Tink,  ///< a small thing happened
    LowBattery,
};

/// The short sounds of the desktop's sound theme. Main thread only.
class SystemSound
{
public:
    virtual ~SystemSound() = default;

    /// Returns at once. What cannot be played is a line in the log.
    virtual void play(Sound sound) = 0;
};

} // namespace quillmere
