#include "monitors/BatterySymbol.h"

#include "platform/Symbols.h"

#include <algorithm>

namespace quillmere {

QLatin1StringView batterySymbol(int level, bool isPluggedIn)
{
    static constexpr std::array quarters{symbols::battery0, symbols::battery25, symbols::battery50,
                                         symbols::battery75, symbols::battery100};
    if (isPluggedIn)
        return symbols::battery100Bolt;
    const int nearest = (std::clamp(level, 0, 100) + 12) / 25;
    return quarters.at(static_cast<std::size_t>(nearest));
}

} // namespace quillmere
