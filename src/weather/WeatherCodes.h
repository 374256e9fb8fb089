#pragma once

#include <QLatin1StringView>

namespace quillmere {

/// Icon and label of a WMO weather-interpretation code; there is one for every number.
QLatin1StringView weatherCodeIcon(int code);
QLatin1StringView weatherCodeLabel(int code);

} // namespace quillmere
