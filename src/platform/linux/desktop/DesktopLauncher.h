#pragma once

#include "platform/ApplicationLauncher.h"

namespace quillmere {

/// Starts applications by their desktop entries, as the desktop itself does.
class DesktopLauncher : public ApplicationLauncher
{
public:
    bool open(const QString &bundleID) override;
};

} // namespace quillmere
