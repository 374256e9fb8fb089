#pragma once

#include "platform/Appearance.h"

#include <QByteArray>

namespace quillmere {

/// What concerns us of the settings file that all programs of the KDE desktop share.
struct KdeGlobals {
    bool isAnimated = true;
    std::optional<AccentColor> accent;
    bool operator==(const KdeGlobals &) const = default;
};

/// Takes any text; what cannot be understood is left at its default.
KdeGlobals parseKdeGlobals(const QByteArray &text);

} // namespace quillmere
