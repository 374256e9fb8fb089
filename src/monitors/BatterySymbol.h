#pragma once

#include <QLatin1StringView>

namespace quillmere {

/// The symbol of a battery as full as this one, a name of platform/Symbols.h. Level in percent.
QLatin1StringView batterySymbol(int level, bool isPluggedIn);

} // namespace quillmere
