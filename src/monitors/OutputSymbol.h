#pragma once

#include "platform/AudioOutput.h"

#include <QLatin1StringView>

namespace quillmere {

/// The symbol that stands for an output device, a name of platform/Symbols.h.
QLatin1StringView outputSymbol(AudioFormFactor formFactor, bool isAirPods);

/// Whether a device of this name is a pair of AirPods. Case counts as in the user's language.
bool isAirPodsName(const QString &name);

} // namespace quillmere
