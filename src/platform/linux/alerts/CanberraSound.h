#pragma once

#include "platform/RunLoop.h"
#include "platform/SystemSound.h"

#include <memory>

namespace quillmere {

/// Sounds of the freedesktop sound theme by libcanberra. The library is used on a thread of its
/// own, for it waits for the sound server, and connected only around a sound.
class CanberraSound : public SystemSound
{
public:
    explicit CanberraSound(RunLoop &runLoop);
    ~CanberraSound() override;

    void play(Sound sound) override;

private:
    class Player;

    RunLoop &runLoop_;
    std::shared_ptr<Player> player_; ///< used on the queue only
    std::unique_ptr<SerialQueue> queue_;
    Task disconnect_;
};

} // namespace quillmere
