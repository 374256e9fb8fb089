#pragma once

#include "settingswindow/SettingEntry.h"

#include <QtGlobal>

namespace quillmere::entries {

// The catalog in parts, each in the order of the pages.
std::span<const SettingGroup> island();
std::span<const SettingGroup> alerts();
std::span<const SettingGroup> messages();
std::span<const SettingGroup> levels();
std::span<const SettingGroup> media();
std::span<const SettingGroup> tools();

/// A time a HUD stays.
inline constexpr SettingRange hudSeconds{.from = 0.5,
                                         .to = 15,
                                         .step = 0.5,
                                         .unit = QT_TRANSLATE_NOOP("Settings", "%1 s"),
                                         .decimals = 1};

} // namespace quillmere::entries
