#pragma once

#include "platform/Screens.h"

#include <QSize>

#include <span>

namespace quillmere {

/// The camera housing of one kind of built-in panel, in the panel's own pixels. Nothing asks the
/// hardware for it: Linux knows no such property, so machines are told apart by name.
struct CameraHousing {
    /// The machine's name: a device-tree "compatible" entry or a DMI product name.
    QLatin1StringView machine;
    /// The mode that reaches up beside the housing; in others the panel is dark there and the
    /// picture has no housing in it.
    QSize mode;
    int inset = 0;    ///< height of the strip the housing hangs into
    int gapLeft = 0;  ///< first column it takes
    int gapRight = 0; ///< the column after its last one
};

/// The machines that are known.
std::span<const CameraHousing> knownCameraHousings();

/// The names this machine goes by: /firmware/devicetree/base/compatible and
/// /class/dmi/id/product_name below `sysfsRoot`. Empty where neither can be read.
QStringList machineNames(const QString &sysfsRoot);

/// The housing of the machine's panel in this mode, or nothing.
const CameraHousing *findCameraHousing(std::span<const CameraHousing> housings,
                                       const QStringList &machineNames, QSize mode);

/// Puts the housing into a screen that shows `scale` of the panel's pixels per logical unit.
void applyCameraHousing(ScreenInfo &screen, const CameraHousing &housing, double scale);

} // namespace quillmere
