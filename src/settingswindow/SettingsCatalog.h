#pragma once

#include "settingswindow/SettingEntry.h"

#include <QLatin1StringView>
#include <QString>

namespace quillmere {

/// Every setting that something reads, once, in the order of the pages.
std::span<const SettingGroup> settingGroups();

/// A setting that is on no page, and why.
struct HiddenSetting {
    QLatin1StringView key;
    QLatin1StringView reason;
};
std::span<const HiddenSetting> hiddenSettings();

/// In the user's language.
QString translated(const char *text);

/// A value of the range as people read it: "3.0 s", "50 %".
QString displayText(const SettingRange &range, double value);

} // namespace quillmere
