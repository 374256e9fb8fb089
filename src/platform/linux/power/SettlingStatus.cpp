#include "platform/linux/power/SettlingStatus.h"

#include <utility>

namespace quillmere {

SettlingStatus::SettlingStatus(RunLoop &runLoop, std::function<void()> onChanged)
    : runLoop_(runLoop)
    , onChanged_(std::move(onChanged))
{
}

void SettlingStatus::begin(const std::optional<BatteryStatus> &status)
{
    settling_.cancel();
    latest_ = status;
    settled_ = status;
}

void SettlingStatus::set(const std::optional<BatteryStatus> &status)
{
    latest_ = status;
    if (settling_)
        return;
    if (settled_ && latest_ && settled_->isPluggedIn != latest_->isPluggedIn)
        settling_ = runLoop_.after(settlingTime, [this] { settle(); });
    else
        settle();
}

void SettlingStatus::settle()
{
    settling_.cancel();
    if (std::exchange(settled_, latest_) != latest_)
        onChanged_();
}

} // namespace quillmere
