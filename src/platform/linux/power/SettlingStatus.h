#pragma once

#include "platform/PowerSources.h"
#include "platform/RunLoop.h"

#include <functional>
#include <optional>

namespace quillmere {

/// Holds a battery status back while its charger's plug comes to rest: charge and charger tell of
/// the same plug one after the other, and a bad contact tells of it many times. Main thread only.
class SettlingStatus
{
public:
    static constexpr Duration settlingTime = std::chrono::milliseconds(300);

    SettlingStatus(RunLoop &runLoop, std::function<void()> onChanged);

    const std::optional<BatteryStatus> &settled() const { return settled_; }

    /// Where everything starts from: settled at once, and no change.
    void begin(const std::optional<BatteryStatus> &status);

    void set(const std::optional<BatteryStatus> &status);

private:
    void settle();

    RunLoop &runLoop_;
    std::function<void()> onChanged_;
    std::optional<BatteryStatus> latest_;
    std::optional<BatteryStatus> settled_;
    Task settling_;
};

} // namespace quillmere
