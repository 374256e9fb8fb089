#include "monitors/LowBatteryRule.h"

#include <algorithm>
#include <cmath>

namespace quillmere {

bool LowBatteryRule::warns(int level, int previousLevel, int threshold, bool isPluggedIn)
{
    if (level > threshold || isPluggedIn)
        return false;
    if (previousLevel <= threshold && hasReportedLowBattery_)
        return false;
    hasReportedLowBattery_ = true;
    return true;
}

int wholePercent(double threshold)
{
    // A settings file can hold any number, and only some of them fit.
    return std::isnan(threshold) ? 0 : static_cast<int>(std::clamp(threshold, -1.0, 101.0));
}

} // namespace quillmere
